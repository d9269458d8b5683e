// SPDX-License-Identifier: MIT
/// Reading a station's table through the rain database.
/// The file's name is the program's, in the program's folder.
#include "project/rain_store.h"

#include "project/reference.h"

namespace mero::project {

void RainStore::load(int station, data::RainDatabase& database, const std::string& folder) {
    auto& slot = stations_[static_cast<std::size_t>(station)];
    if (!slot) {
        slot = design::stationRain(database.read(reference().StaniceCislo(station), folder + "/mero.mdb"));
    }
}

}  // namespace mero::project

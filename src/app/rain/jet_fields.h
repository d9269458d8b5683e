// SPDX-License-Identifier: MIT
/// The fields of a table as libmdb finds them, each checked before its values are believed.
/// The library follows damaged structures without a word, so the file's redundancy is compared here.
#pragma once

// Before mdbtools.h, which includes it as C and cannot: its macros are templates here.
#include <glib.h>
#include <mdbtools.h>

#include <span>
#include <string>
#include <vector>

#include "app/rain/jet_value.h"
#include "app/rain/table_error.h"

namespace mero::rain {

/// One field and how to read it. It lives as long as the table that it was read from.
struct Field {
    const MdbColumn* column = nullptr;
    FieldType type = FieldType::Other;
};

/// A table's fields in its own order.
struct Fields {
    std::vector<Field> present;
    int ever = 0;  ///< deleted ones included; no row has more
};

/// Reads the table's header.
/// @throws TableError ReadFailed when a field overlaps another, has another size than its type, or is of no
/// known
///         type
[[nodiscard]] Fields readFields(MdbTableDef& table, MdbHandle& handle);

/// The elements of one of the library's arrays of pointers.
template <typename Element>
std::vector<Element*> elementsOf(const GPtrArray& array) {
    std::vector<Element*> elements;
    for (void* element : std::span(array.pdata, array.len)) {
        elements.push_back(static_cast<Element*>(element));
    }
    return elements;
}

}  // namespace mero::rain

// SPDX-License-Identifier: MIT
/// Reads the fields of a table with libmdb and checks each before its values are used.
/// The library follows damaged structures without an error, so redundant data of the file are compared here.
#pragma once

// Before mdbtools.h, which includes it as C; in C++ it has templates, which must not be inside extern "C".
#include <glib.h>
#include <mdbtools.h>

#include <span>
#include <string>
#include <vector>

#include "app/rain/jet_value.h"
#include "app/rain/table_error.h"

namespace mero::rain {

/// One field and how to read it. Valid as long as the table that it was read from.
struct Field {
    const MdbColumn* column = nullptr;
    FieldType type = FieldType::Other;
};

/// A table's fields in its own order.
struct Fields {
    std::vector<Field> present;
    int ever = 0;  ///< number including deleted fields; no row has more
};

/// Reads the table's header.
/// @throws TableError ReadFailed when a field overlaps another, its size does not match its type, or its type
///         is unknown
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

// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>

#include <optional>
#include <type_traits>

/// Merge of two dictionaries in which the right-hand value wins.
template <class Key, class Value>
[[nodiscard]] QMap<Key, Value> operator+(
    QMap<Key, Value> left, const std::type_identity_t<std::optional<QMap<Key, Value>>> &right)
{
    if (right)
        left.insert(*right);
    return left;
}

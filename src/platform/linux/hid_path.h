// Paths of HID interfaces: a node, and where it has several top-level collections, the number of one.
#pragma once

#include <string>

namespace tarnix {

/// Stands between a node and the number of a collection in it.
constexpr char collectionMark = '#';

inline std::string nodeOfHidPath(const std::string& path) {
    return path.substr(0, path.find(collectionMark));
}

} // namespace tarnix

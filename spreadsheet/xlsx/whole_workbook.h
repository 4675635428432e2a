#pragma once

#include <cstddef>
#include <filesystem>

namespace norvane {

/// Whether a workbook file can be read: each part of the archive is there and well-formed, and its
/// sheet has `cells` values. The library that writes it doesn't tell when the disk refuses some of
/// what it keeps in temporary files meanwhile.
bool Is_Whole_Workbook(const std::filesystem::path& file, std::size_t cells);

}  // namespace norvane

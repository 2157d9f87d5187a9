// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A multi-string list is a run of NUL-terminated strings ended by one more NUL. Two writers
// exist because the profile calls and the declaration scanners cut a list that does not fit
// in different ways; callers that size their buffer first never see either cut.
namespace quindar {

// Bytes the whole list takes, the final NUL included.
std::size_t multi_string_size(const std::vector<std::string> &names);

// The scanners' rule: names are stored while they fit in size - 1 bytes, each ended by a NUL,
// and a final NUL closes the list. A name that does not fit ends the list. Returns the number
// of names stored; with size 0 or less nothing is written.
int pack_while_they_fit(const std::vector<std::string> &names, char *buffer, long size);

// The profile calls' rule: a list that does not fit is cut inside its last name and closed
// with two NULs. Returns the bytes stored, the final NUL not counted (size - 2 when cut).
std::size_t pack_profile_list(const std::vector<std::string> &names, char *buffer,
                              std::size_t size);

// A single value cut to size - 1 bytes and NUL-terminated; returns the bytes stored.
std::size_t copy_cut(std::string_view value, char *buffer, std::size_t size);

// The names of a list, reading no further than size bytes.
std::vector<std::string> split_multi_string(const char *list, std::size_t size);

}  // namespace quindar

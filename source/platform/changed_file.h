// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Writing a file only when its content changes, so that its time tells when it really did.

#include <string>
#include <string_view>

namespace quindar {

// Writes content through a temporary file (replace_file_content) only when the file does not
// already hold exactly that, making the folders on the way. Changed is set when it was written.
bool write_file_if_changed(const std::string &path, std::string_view content, bool &changed);

}  // namespace quindar

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Documents on the command line: a ".qnd" file is opened with its declarations, and the
// processed work can be saved as one.

#include <string>
#include <vector>

#include "document_parts.h"
#include "file_io.h"
#include "parser.h"

namespace quindar::cli {

// True for a path that names a document (extension ".qnd", any case).
bool IsDocumentPath(const std::string &path);

// Loads the document into the engine and content. Every message the load shows (the
// engine's and the document's) is added to messages; false with the reason in error when
// the document cannot be loaded at all.
bool LoadDocument(const std::string &path, Parser &parser, DocumentContent &content,
                  std::vector<std::string> &messages, std::string &error);

// Saves the work as a document; false with the reason in error. Under lock, a lock the caller
// holds on path; what the saved file could not keep of the old one goes to warnings.
bool SaveDocument(const std::string &path, Parser &parser, DocumentContent &content,
                  std::string &error, std::vector<std::string> &warnings,
                  const FileLock *lock = nullptr);

}  // namespace quindar::cli

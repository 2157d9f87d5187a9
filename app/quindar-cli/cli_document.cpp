// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "cli_document.h"

#include <algorithm>
#include <cctype>

#include "document_file.h"

namespace quindar::cli {

namespace {

constexpr std::string_view kDocumentExtension = ".qnd";

std::string boxed(std::string_view caption, std::string_view text) {
    return std::string(caption) + ": " + std::string(text);
}

}  // namespace

bool IsDocumentPath(const std::string &path) {
    if (path.size() <= kDocumentExtension.size()) return false;
    const std::string_view tail(path.data() + path.size() - kDocumentExtension.size(),
                                kDocumentExtension.size());
    return std::equal(tail.begin(), tail.end(), kDocumentExtension.begin(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == b;
    });
}

bool LoadDocument(const std::string &path, Parser &parser, DocumentContent &content,
                  std::vector<std::string> &messages, std::string &error) {
    std::vector<std::string> shown;
    parser.set_message_hook(
        [&shown](std::string_view text, std::string_view caption, MessageStyle) {
            shown.push_back(boxed(caption, text));
            return true;
        });
    DocumentFile file(parser, content);
    file.SetWarningHook([&shown](std::string_view text, std::string_view caption) {
        shown.push_back(boxed(caption, text));
    });
    const bool loaded = file.Read(path.c_str());
    // The run that follows reports its own failures line by line.
    parser.set_message_hook({});
    if (!loaded) {
        // The last box says that the file could not be read; the ones before say why.
        error = "cannot load \"" + path + "\"";
        if (!shown.empty()) {
            error = shown.back();
            shown.pop_back();
        }
    }
    messages.insert(messages.end(), shown.begin(), shown.end());
    return loaded;
}

bool SaveDocument(const std::string &path, Parser &parser, DocumentContent &content,
                  std::string &error, std::vector<std::string> &warnings, const FileLock *lock) {
    DocumentFile file(parser, content);
    file.SetHeldLock(lock);
    std::vector<std::string> shown;
    file.SetWarningHook([&shown](std::string_view text, std::string_view caption) {
        shown.push_back(boxed(caption, text));
    });
    if (file.Write(path.c_str())) {
        warnings.insert(warnings.end(), shown.begin(), shown.end());
        return true;
    }
    error = "cannot save \"" + path + "\": " + (shown.empty() ? std::string() : shown.front());
    return false;
}

}  // namespace quindar::cli

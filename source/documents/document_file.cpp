// SPDX-License-Identifier: GPL-3.0-or-later
// DocumentFile: the order of a save and of a load, and the key access both share.
#include "document_file.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "document_messages.h"
#include "file_io.h"
#include "profile.h"
#include "profile_builder.h"
#include "profile_snapshot.h"

namespace quindar {

namespace {

// How far a load has come behind each of its steps.
constexpr int kProgressVariables = 15;
constexpr int kProgressFunctions = 25;
constexpr int kProgressSettings = 35;
constexpr int kProgressFont = 45;
constexpr int kProgressCalculus = 55;
constexpr int kProgressGraphs = 65;
constexpr int kProgressStaged = 75;
constexpr int kProgressText = 85;

std::string upper_case(std::string text) {
    for (char &c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

// The editor's text as a text-mode read and write give it back: every line break CR LF.
std::string with_cr_lf(std::string_view text) {
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\n') result += '\r';
        result += text[i];
    }
    return result;
}

}  // namespace

DocumentFile::DocumentFile(Parser &engine, DocumentContent &parts)
    : parser(engine), content(parts) {}

DocumentFile::~DocumentFile() = default;

void DocumentFile::Warn(const std::string &text, int caption) const {
    show_warning(warn, text, document_message_text(caption));
}

bool DocumentFile::Progress(std::string_view text, int percent) const {
    return !progress || progress(text, percent);
}

bool DocumentFile::Write(const char *path) {
    const std::string target = path != nullptr ? path : fileName;
    if (target.empty()) {
        Warn(document_message(kMsgFileWasNotSaved), kCaptionSaveFile);
        return false;
    }
    if (is_read_only_file(target)) {
        Warn(document_message(kMsgReadOnly, upper_case(target).c_str()), kCaptionSaveFile);
        return false;
    }
    ProfileBuilder file(content.text);
    builder = &file;
    const bool built = WriteVariables() && WriteFunctions() && WriteSettings() && WriteFont() &&
                       WriteCalculusParameters() && WriteGraphs();
    builder = nullptr;
    const ReplaceOutcome outcome =
        built ? replace_file(target, file.Content(), heldLock) : ReplaceOutcome{};
    if (!outcome.written) {
        // The system's reason, when there is one, follows the message: the user must know
        // whether the folder is missing, the disk full or the file too large.
        std::string text = document_message(kMsgFileWasNotSaved);
        if (!outcome.reason.empty()) text += " (" + target + ": " + outcome.reason + ")";
        Warn(text, kCaptionSaveFile);
    } else if (!outcome.warning.empty()) {
        Warn(target + ": " + outcome.warning, kCaptionSaveFile);
    }
    return outcome.written;
}

bool DocumentFile::Put(const char *section, const char *key, const std::string &value) {
    return builder != nullptr && builder->WriteString(section, key, value);
}

bool DocumentFile::PutInt(const char *section, const char *key, long value) {
    return Put(section, key, std::to_string(value));
}

bool DocumentFile::Read(const char *path) {
    const std::string source = path != nullptr ? path : fileName;
    // The whole file is checked before anything is declared, so that a file which cannot be
    // a document is refused without leaving half of it in the engine.
    const auto bytes = read_whole_file(source);
    if (!bytes) {
        show_warning(warn, VarFunIniFile(source.c_str()).GetErrorMessage(), "File Access");
        Warn(document_message(kMsgUnableToRead, source.c_str()), kCaptionFileOpen);
        return false;
    }
    if (bytes->find('\0') != std::string::npos) {
        Warn(document_message(kMsgNotAText, source.c_str()), kCaptionFileOpen);
        Warn(document_message(kMsgUnableToRead, source.c_str()), kCaptionFileOpen);
        return false;
    }

    snapshot = std::make_unique<ProfileSnapshot>(*bytes);
    iniFile = std::make_unique<VarFunIniFile>(source.c_str(), nullptr, nullptr, warn);
    Progress("Opening File...", 0);
    const bool declared =
        ReadVariables() && Progress({}, kProgressVariables) && ReadFunctions() &&
        Progress({}, kProgressFunctions) && ReadSettings() && Progress({}, kProgressSettings) &&
        ReadFont() && Progress({}, kProgressFont) && ReadCalculusParameters() &&
        Progress({}, kProgressCalculus) && ReadGraphs() && Progress({}, kProgressGraphs);
    const long textEnd = declared ? iniFile->OffsetOfFirstHeader() : 0;
    iniFile.reset();
    snapshot.reset();
    if (!declared) {
        Warn(document_message(kMsgUnableToRead, source.c_str()), kCaptionFileOpen);
        return false;
    }
    const std::size_t end =
        std::min(static_cast<std::size_t>(std::max(textEnd, 0L)), bytes->size());
    Progress({}, kProgressStaged);
    content.text = with_cr_lf(std::string_view(*bytes).substr(0, end));
    Progress({}, kProgressText);
    Progress({}, 100);
    if (fileName.empty()) fileName = source;
    return true;
}

std::string DocumentFile::GetString(const char *section, const char *key, const char *deflt) const {
    return snapshot->Whole(section, key, deflt);
}

int DocumentFile::GetInt(const char *section, const char *key, int deflt) const {
    return snapshot->Int(section, key, deflt);
}

bool DocumentFile::Evaluate(const std::string &text, complex &value) {
    parser.eval_exp(text.c_str(), value, false, true);
    const bool failed = parser.IsAnError();
    parser.ClearLastError();
    return !failed;
}

}  // namespace quindar

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "var_fun_ini_file.h"

#include <algorithm>

#include "file_io.h"
#include "line_scanner.h"
#include "multi_string.h"
#include "profile.h"

namespace quindar {

namespace {

constexpr const char *kDefaultVariableFlag = "DECLARED VARIABLES";
constexpr const char *kDefaultFunctionFlag = "DECLARED FUNCTIONS";
constexpr const char *kSetupFlag = "SETUP";
constexpr const char *kFileAccessCaption = "File Access";
constexpr const char *kNoFileName = "File Name Not Provided, File Could Not Be Opened!";

bool has_text(const char *text) {
    return text != nullptr && *text != '\0';
}

long count_cr(std::string_view content) {
    return static_cast<long>(std::count(content.begin(), content.end(), '\r'));
}

}  // namespace

VarFunIniFile::VarFunIniFile(const char *path, const char *functionFlagText,
                             const char *variableFlagText, WarningHook warnHook)
    : IniFile(path), usable(path != nullptr), warn(std::move(warnHook)) {
    variableFlag.text = has_text(variableFlagText) ? variableFlagText : kDefaultVariableFlag;
    functionFlag.text = has_text(functionFlagText) ? functionFlagText : kDefaultFunctionFlag;
    setupFlag.text = kSetupFlag;
    if (!usable) {
        show_warning(warn, kNoFileName, kFileAccessCaption);
        return;
    }
    errorMessage = "File \" ";
    errorMessage += path;
    errorMessage += " \" Could Not Be Opened!";
}

void VarFunIniFile::SetFunctionFlagStr(const char *flag) {
    if (!has_text(flag) || functionFlag.text == flag) return;
    functionFlag.text = flag;
    functionFlag.position = -1;
}

void VarFunIniFile::SetVariableFlagStr(const char *flag) {
    if (!has_text(flag) || variableFlag.text == flag) return;
    variableFlag.text = flag;
    variableFlag.position = -1;
}

std::optional<std::string> VarFunIniFile::Load() {
    if (!usable) return std::nullopt;
    auto content = read_whole_file(fileName);
    if (!content) show_warning(warn, errorMessage, kFileAccessCaption);
    return content;
}

void VarFunIniFile::Forget() {
    longestLine = crInFile = crBeforeDecs = crCountedUpTo = -1;
    variableFlag.position = functionFlag.position = setupFlag.position = fileSize = -1;
}

bool VarFunIniFile::PositionsKnown() {
    bool known = variableFlag.position >= 0 && functionFlag.position >= 0 &&
                 setupFlag.position >= 0 && fileSize >= 0;
    return known || FindFlags();
}

// Each line's head, the first (longest flag + 2) bytes, is compared with every "[flag]".
// A match records the offset the head read reached: the end of the head, and one byte
// further, behind the CR, for a line shorter than that. A later header of a name overrides
// an earlier one.
bool VarFunIniFile::FindFlags() {
    auto content = Load();
    if (!content) return false;
    Flag *flags[] = {&variableFlag, &functionFlag, &setupFlag};
    std::size_t longest = 0;
    std::vector<std::string> headers;
    for (Flag *flag : flags) {
        flag->position = 0;
        flag->lineStart = -1;
        longest = std::max(longest, flag->text.size());
        headers.push_back("[" + flag->text + "]");
    }
    const std::size_t head = longest + 2;
    LineScanner scanner(*content, true);
    LineScanner::Line line;
    while (scanner.Next(line)) {
        std::size_t reached = std::min(head, line.text.size());
        if (line.text.size() < head && line.end == '\r') ++reached;
        for (std::size_t i = 0; i < 3; ++i) {
            if (line.text.substr(0, headers[i].size()) != headers[i]) continue;
            flags[i]->position = static_cast<long>(line.begin + reached);
            flags[i]->lineStart = static_cast<long>(line.begin);
        }
    }
    fileSize = static_cast<long>(content->size());
    return true;
}

bool VarFunIniFile::FindVariableFlag() {
    return PositionsKnown() && variableFlag.position > 0;
}

bool VarFunIniFile::FindFunctionFlag() {
    return PositionsKnown() && functionFlag.position > 0;
}

bool VarFunIniFile::FindSetupFlag() {
    return PositionsKnown() && setupFlag.position > 0;
}

long VarFunIniFile::SizeOfFile() {
    if (fileSize < 0 && !FindFlags()) return 0;
    return fileSize;
}

long VarFunIniFile::SizeOfAsciiFile() {
    if (crInFile < 0 || fileSize < 0) {
        auto content = Load();
        if (!content) return 0;
        crInFile = count_cr(*content);
        fileSize = static_cast<long>(content->size());
    }
    return fileSize - crInFile;
}

long VarFunIniFile::SizeOfLongestLine() {
    if (longestLine < 0) {
        auto content = Load();
        if (!content) return 0;
        std::size_t longest = 0;
        LineScanner scanner(*content);
        LineScanner::Line line;
        while (scanner.Next(line)) longest = std::max(longest, line.text.size());
        longestLine = static_cast<long>(longest) + 2;
    }
    return longestLine;
}

// The section runs to the other declaration section when that one follows, else to the
// setup section or the end of the file. A section that the other one precedes in a file with
// a setup section measures 0. The result only sizes buffers and tells whether the section has
// content, so an order that would give a negative size measures to the end of the file.
long VarFunIniFile::SectionSize(const Flag &self, const Flag &other) {
    if (!PositionsKnown() || self.position == 0) return 0;
    long size;
    if (other.position > self.position) {
        size = other.position - self.position - static_cast<long>(other.text.size());
    } else if (other.position > 0) {
        size = setupFlag.position > 0 ? 0 : fileSize - self.position;
    } else if (setupFlag.position > self.position) {
        size = setupFlag.position - self.position;
    } else {
        size = fileSize - self.position;
    }
    return std::max(size, 0L);
}

long VarFunIniFile::SizeOfVarSection() {
    return SectionSize(variableFlag, functionFlag);
}

long VarFunIniFile::SizeOfFunSection() {
    return SectionSize(functionFlag, variableFlag);
}

// The first of the declaration sections, or the setup section when there is neither.
const VarFunIniFile::Flag *VarFunIniFile::FirstDeclarationFlag() {
    bool variables = variableFlag.position > 0;
    bool functions = functionFlag.position > 0;
    if (variables && functions) {
        return variableFlag.position < functionFlag.position ? &variableFlag : &functionFlag;
    }
    if (variables) return &variableFlag;
    if (functions) return &functionFlag;
    if (setupFlag.position > 0) return &setupFlag;
    return nullptr;
}

long VarFunIniFile::OffsetOfFirstHeader() {
    if (!PositionsKnown()) return 0;
    const Flag *first = FirstDeclarationFlag();
    return first != nullptr ? first->lineStart : fileSize;
}

// The free text ends where the first header line starts. The header's own line start is
// kept by the scan, so this holds for LF files and for flags of any length alike.
long VarFunIniFile::GetStartOfDecs() {
    if (!PositionsKnown()) return 0;
    long offset = OffsetOfFirstHeader();
    if (crBeforeDecs < 0 || crCountedUpTo != offset) {
        auto content = Load();
        if (!content) return 0;
        std::size_t end = std::min(static_cast<std::size_t>(offset), content->size());
        crBeforeDecs = count_cr(std::string_view(*content).substr(0, end));
        crCountedUpTo = offset;
    }
    return offset - crBeforeDecs;
}

bool VarFunIniFile::WriteVariable(const char *name, const char *value) {
    if (!usable) return false;
    Forget();
    return WritePrivateProfileString(variableFlag.text.c_str(), name, value, fileName.c_str());
}

bool VarFunIniFile::WriteFunction(const char *name, const char *value) {
    if (!usable) return false;
    Forget();
    return WritePrivateProfileString(functionFlag.text.c_str(), name, value, fileName.c_str());
}

std::size_t VarFunIniFile::GetVariable(const char *name, const char *deflt, char *buffer,
                                       int size) {
    if (buffer == nullptr || size <= 0) return 0;
    if (!usable) {
        buffer[0] = '\0';
        return 0;
    }
    return GetPrivateProfileString(variableFlag.text.c_str(), name, deflt, buffer,
                                   static_cast<std::size_t>(size), fileName.c_str());
}

// The key list is read into a buffer of the section's measured size, as every reader of a
// document does, so a section that measures 0 has no variables.
int VarFunIniFile::GetNumVariables() {
    long size = SizeOfVarSection();
    if (size <= 0) return 0;
    std::vector<char> list(static_cast<std::size_t>(size));
    GetPrivateProfileString(variableFlag.text.c_str(), nullptr, "", list.data(), list.size(),
                            fileName.c_str());
    return static_cast<int>(split_multi_string(list.data(), list.size()).size());
}

}  // namespace quindar

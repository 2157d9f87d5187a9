// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ini_file.h"
#include "warning_hook.h"

namespace quindar {

// The reader of documents and function libraries. Neither is a clean profile file: a document
// starts with free text, a function's key holds brackets and commas, a value may hold "=",
// and a library mixes definitions with description lines. So sections are found by their
// header lines (compared exactly, case and all), measured, and the functions of a section are
// listed and looked up by scanning. No file stays open between calls: each operation reads
// the file from the top.
//
// Sizes that cannot change while a file is being read (longest line, CR counts, section
// positions) are cached, -1 while unknown; a position of 0 means that the section is not in
// the file. Writes made through this object forget them. Changes made by anyone else are not
// noticed: an object is meant to live for one load or save, or as long as its library's user.
//
// A category argument of null means the section named by the current function flag. A
// category that is not one of the file's categories makes the operation return false or 0
// with an empty result; one that is becomes the current function flag and stays so.
//
// A read that cannot open the file shows errorMessage under "File Access" through the warning
// hook and gives 0, false or an empty result.
class VarFunIniFile : public IniFile {
public:
    // Null (or empty) flags take the defaults "DECLARED FUNCTIONS" and "DECLARED VARIABLES".
    // A null path shows "File Name Not Provided, File Could Not Be Opened!"; every operation
    // of such an object then fails quietly.
    VarFunIniFile(const char *path, const char *functionFlag = nullptr,
                  const char *variableFlag = nullptr, WarningHook warn = {});

    // Replace a flag and forget that section's position; null or empty text is ignored.
    void SetFunctionFlagStr(const char *flag);
    void SetVariableFlagStr(const char *flag);
    const char *GetFunctionFlagStr() const { return functionFlag.text.c_str(); }
    const char *GetVariableFlagStr() const { return variableFlag.text.c_str(); }
    const char *GetSetupFlagStr() const { return setupFlag.text.c_str(); }

    const std::string &GetErrorMessage() const { return errorMessage; }
    void SetWarningHook(WarningHook hook) { warn = std::move(hook); }

    // Profile writes under the flag's section (so a null name deletes the whole section and a
    // null value the key, as the profile call does). True on success.
    bool WriteVariable(const char *name, const char *value);
    bool WriteFunction(const char *name, const char *value);

    // Profile read under the variable flag; a null name gives the list of variable names.
    // Returns the bytes stored, as the profile call does.
    std::size_t GetVariable(const char *name, const char *deflt, char *buffer, int size);
    int GetNumVariables();

    // Names of the function section: lines that start with a letter and hold "[", "]" and
    // "=", up to the "="; the first line that does not start with a letter ends the listing.
    int GetNumFunctions();
    bool GetFunctionNames(char *buffer, int size, const char *category = nullptr);
    // The buffer the list needs, final NUL included; 0 when there is no name.
    long SizeOfFunctionNames(const char *category = nullptr);

    // Categories: lines whose first non-white character is "[" and that hold a "]" and no
    // "=", named by the text up to the first "]".
    bool IsFunctionCatagory(const char *name);
    bool GetFunctionCatagories(char *buffer, int size);
    long SizeOfFunctionCatagories();

    // The text behind the first "=" (leading white space skipped) of the first line behind the
    // section's header whose text up to that "=" equals name exactly, wherever it stands
    // further down. True if a non-empty value was found.
    bool GetFunctionValue(const char *name, char *buffer, int size, const char *category = nullptr);
    // The values GetFunctionValue finds for each of names, in one reading of the file: an
    // empty text where it finds none. Nothing if the file could not be read.
    std::optional<std::vector<std::string>> GetFunctionValues(const std::vector<std::string> &names,
                                                              const char *category = nullptr);
    // True if name equals an entry of the section's list, or the entry's part before its "[",
    // without regard to case.
    bool IsFunction(const char *name, const char *category = nullptr);
    // The whole entry whose part before "[" equals name without regard to case.
    bool GetFuncFullName(const char *name, char *buffer, int size, const char *category = nullptr);

    // Length of the free text at the head of the file, CR bytes not counted.
    long GetStartOfDecs();
    // The same in bytes of the file: the offset of the first header line.
    long OffsetOfFirstHeader();
    long SizeOfFile();
    long SizeOfAsciiFile();
    long SizeOfVarSection();
    long SizeOfFunSection();
    bool FindVariableFlag();
    bool FindFunctionFlag();
    bool FindSetupFlag();
    long SizeOfLongestLine();
    long SizeOfLongestFuncName(const char *category = nullptr);
    long SizeOfLongestFuncValue(const char *category = nullptr);
    long SizeOfLongestFuncNameAndValue(const char *category = nullptr);

private:
    // A section flag: the section's name without brackets, and where the scan found it.
    struct Flag {
        std::string text;
        long position = -1;   // the offset reached after reading the header's head; 0: absent
        long lineStart = -1;  // offset of the header line
    };

    std::optional<std::string> Load();
    bool FindFlags();
    bool PositionsKnown();
    void Forget();
    long SectionSize(const Flag &self, const Flag &other);
    const Flag *FirstDeclarationFlag();
    bool SelectCategory(const char *category);
    std::optional<std::vector<std::string>> ScanFunctionNames();
    std::optional<std::vector<std::string>> ScanCategories();
    std::optional<std::vector<std::string>> ScanFunctionValues(
        const std::vector<std::string> &names);
    std::optional<std::vector<std::string>> SectionList();
    bool LongestNameAndValue(long &name, long &value);

    bool usable;
    std::string errorMessage;
    WarningHook warn;

    long longestLine = -1;
    long crInFile = -1;
    long crBeforeDecs = -1;
    long crCountedUpTo = -1;  // the offset crBeforeDecs was counted for

    Flag variableFlag;
    Flag functionFlag;
    Flag setupFlag;
    long fileSize = -1;
};

}  // namespace quindar

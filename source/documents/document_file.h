// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and loading one work as a document file: text, declarations, settings and graphs.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "document_parts.h"
#include "file_io.h"
#include "parser.h"
#include "var_fun_ini_file.h"
#include "warning_hook.h"

namespace quindar {

class ProfileBuilder;
class ProfileSnapshot;
template <class Record>
struct DocumentFieldKey;

// Section names of a document, in the order they are written.
inline constexpr const char *kVariablesSection = "DECLARED VARIABLES";
inline constexpr const char *kFunctionsSection = "DECLARED FUNCTIONS";
inline constexpr const char *kSetupSection = "SETUP";
inline constexpr const char *kFontSection = "FONT";
inline constexpr const char *kIntegrationSection = "INTEGRATION PARAMETERS";
inline constexpr const char *kDifferentiationSection = "DIFFERENTIATION PARAMETERS";
inline constexpr const char *kGraphsSection = "GRAPHS";

// Told how far a load has come (0 to 100) and what it does; returns false when the user
// pressed Cancel.
using ProgressHook = std::function<bool(std::string_view text, int percent)>;

// A document: the free text of the editor first, then profile sections holding the engine's
// variables and functions, the formats, the font, the calculus pages' settings and the
// graphs. Declarations come back through the engine itself: variables are evaluated with
// auto_declare, functions go into its table as they stand. Nothing of a graph is computed.
//
// Saving builds the whole file in memory and puts it in place through a temporary file, so a
// failed save leaves the old file as it was. Failures are told through the warning hook (as
// the numbered messages of document_messages.h) and make the operation return false.
class DocumentFile {
public:
    DocumentFile(Parser &parser, DocumentContent &content);
    ~DocumentFile();
    DocumentFile(const DocumentFile &) = delete;
    DocumentFile &operator=(const DocumentFile &) = delete;

    void SetWarningHook(WarningHook hook) { warn = std::move(hook); }
    void SetProgressHook(ProgressHook hook) { progress = std::move(hook); }
    void SetFileName(const char *path) { fileName = path != nullptr ? path : ""; }
    // A lock the caller already holds on the file a save replaces (taken before the load, so
    // that a second program saving the same file waits for the whole read, compute and save);
    // without one, a save takes its own.
    void SetHeldLock(const FileLock *lock) { heldLock = lock; }
    const std::string &GetFileName() const { return fileName; }

    // Saves to path, or to the file name when null. True on success.
    bool Write(const char *path = nullptr);
    // Loads from path, or from the file name when null, into a fresh engine and content:
    // graphs are added behind those already there. True on success; on failure the text is
    // not loaded, and what was declared until then stays in the engine.
    bool Read(const char *path = nullptr);

    // The steps of a save; each adds its sections to the file being built.
    bool WriteVariables();
    bool WriteFunctions();
    bool WriteSettings();
    bool WriteFont();
    bool WriteCalculusParameters();
    bool WriteGraphs();

    // The steps of a load, on the file being read; false when the load was cancelled.
    bool ReadVariables();
    bool ReadFunctions();
    bool ReadSettings();
    bool ReadFont();
    bool ReadCalculusParameters();
    bool ReadGraphs();

private:
    void Warn(const std::string &text, int caption) const;
    bool Progress(std::string_view text, int percent) const;
    bool Put(const char *section, const char *key, const std::string &value);
    bool PutInt(const char *section, const char *key, long value);
    // A key's whole value: a document keeps what it holds, whatever its length.
    std::string GetString(const char *section, const char *key, const char *deflt) const;
    int GetInt(const char *section, const char *key, int deflt) const;
    template <class Record>
    bool WriteFields(const Record &record, std::span<const DocumentFieldKey<Record>> keys,
                     const char *section);
    template <class Record>
    void ReadFields(Record &record, std::span<const DocumentFieldKey<Record>> keys,
                    const char *section) const;
    bool WriteGraph(const GraphData &graph, const std::string &section);
    bool ReadGraph(GraphData &graph, const std::string &section);
    bool ReadGraphFunctions(GraphData &graph, const std::string &section);
    bool ReadAxisVariables(GraphData &graph, const std::string &section);
    bool ReadDataSets(GraphData &graph, const std::string &section);
    void ReadDataPoints(GraphData &graph, StrDataPnts &set, const std::string &section);
    void ReadGraphAttributes(GraphData &graph, const std::string &section);
    bool Evaluate(const std::string &text, complex &value);

    Parser &parser;
    DocumentContent &content;
    std::string fileName;
    WarningHook warn;
    ProgressHook progress;
    const FileLock *heldLock = nullptr;

    // During a save: the file being built; during a load: the file's keys as read once,
    // and its section scanner.
    ProfileBuilder *builder = nullptr;
    std::unique_ptr<ProfileSnapshot> snapshot;
    std::unique_ptr<VarFunIniFile> iniFile;
};

}  // namespace quindar

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The rules of the Options sheet without its widgets: the Precision/Format page and the
// Mathematical page hold their values until applied, to the document in focus or to all
// open documents; the sheet applies only the pages that were shown, and OK always writes
// the application's options.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app_settings.h"
#include "precform.h"

namespace quindar {

class Parser;

// What the pages reach of an open document.
class OptionsDocument {
public:
    virtual ~OptionsDocument() = default;
    virtual Parser &Engine() = 0;
    // The document counts as changed (it asks to be saved).
    virtual void MarkSettingsChanged() = 0;
    virtual void RefillVariables() = 0;
    // Its graphs are computed again under a new angle mode.
    virtual void GraphsNeedData() = 0;
};

// The document in focus first, then the other open documents.
using OptionsDocuments = std::span<OptionsDocument *const>;

// The application's options the sheet changes, and writes on every apply.
struct SheetOptions {
    int windowWidth = 150;
    bool applyPrecisionToAll = true;
    bool applyTrigToAll = true;
    bool showCalcBar = true;
    bool calculationMethod = true;  // Enter computes; otherwise Shift+Enter
    bool useSquareBrackets = false;
};

// Writes the six keys an apply of the sheet writes; false when the file could not be written.
bool SaveSheetOptions(const AppSettings &settings, const SheetOptions &options);

inline constexpr int kLowestPrecision = 1;
inline constexpr int kHighestPrecision = 14;
inline constexpr int kLowestZeroExponent = 1;
inline constexpr int kHighestZeroExponent = 307;

inline constexpr int kPrecisionFormatTitle = 24200;
inline constexpr int kAskApplyToFile = 24235;
inline constexpr int kAskApplyToAll = 24236;
inline constexpr int kAskApplyToVariables = 24237;
inline constexpr int kAskApplyToEditor = 24238;
inline constexpr int kZeroPrecisionEmpty = 24234;

// The text of a message of the Options sheet.
std::string_view OptionsMessageText(int id);

// One step of the zero threshold's up-down: the exponent n of "1.0e-n" goes up (a smaller
// threshold) or down within 1 to 307. Text with no signed exponent stays as it is.
struct ZeroPrecisionStep {
    int messageId = 0;  // kZeroPrecisionEmpty for an empty box
    std::string text;
    bool changed = false;
};
ZeroPrecisionStep StepZeroPrecision(std::string_view text, bool up);
// "1.0e-14" and the like, as the box shows a stored threshold.
std::string ZeroPrecisionText(float zeroPrecision);

class PrecisionFormatPage {
public:
    enum Window { kMathEditor = 0, kVariables = 1 };

    PrecisionFormatPage(const Parser &current, bool applyToAll, int window = kMathEditor);

    int ShownWindow() const { return window; }
    const PrecformType &Shown() const { return window == kMathEditor ? editor : variables; }
    bool Dirty() const { return pageDirty; }
    bool ApplyToAll() const { return applyToAll; }

    // The steppers; false at a limit, where nothing changes and the page stays clean.
    bool Higher();
    bool Lower();
    void SetScientific(bool scientific);
    void SetShowPoint(bool show);
    void SetLeadSign(bool show);
    // The threshold's box after an up-down step; the value is stored when it changed.
    ZeroPrecisionStep StepZero(std::string_view boxText, bool up);

    // The question before another record is shown, or 0 when there is none to ask; the
    // question is about the record being left.
    int QuestionBeforeShowing(int target) const;
    void ShowWindow(int target);
    // The question before the apply radio changes, or 0.
    int QuestionBeforeApplyTarget(bool all) const;
    void SetApplyToAll(bool all) { applyToAll = all; }

    // Applies the records (when changed) to the documents, marks the one in focus changed,
    // refills its Variables list and writes the options through settings, if given.
    void ApplyChanges(OptionsDocuments documents, SheetOptions &options,
                      const AppSettings *settings);

private:
    PrecformType &ShownRecord() { return window == kMathEditor ? editor : variables; }

    PrecformType editor;
    PrecformType variables;
    bool pageDirty = false;
    bool applyToAll;
    int window;
};

class MathOptionsPage {
public:
    MathOptionsPage(const Parser &current, const SheetOptions &options);

    int AngleMode() const { return angleMode; }
    bool Changed() const { return changed; }
    bool TrigChanged() const { return trigChanged; }

    void SetApplyToAll(bool all);
    void SetAngleMode(int mode);  // 0 degrees, 1 radians
    void SetCalculationMethod(bool enterComputes);
    void SetUseSquareBrackets(bool use);

    // The angle mode goes to the document in focus, or to all; the brackets go to every
    // document whichever radio is set.
    void ApplyChanges(OptionsDocuments documents, SheetOptions &options,
                      const AppSettings *settings);

private:
    bool applyToAll;
    int angleMode;
    bool calculationMethod;
    bool useSquareBrackets;
    bool trigChanged = false;
    bool changed = false;
};

// The sheet's pages: made when first shown, applied by OK and Apply only when made; Apply
// is enabled while a page is marked changed.
class OptionsSheetState {
public:
    enum Page { kPrecisionFormat = 0, kMathematical = 1, kMediaPlayer = 2, kPageCount = 3 };

    // The first page shows when the sheet opens.
    OptionsSheetState() { Show(kPrecisionFormat); }
    // True when this showing made the page.
    bool Show(int page);
    bool Created(int page) const { return created[static_cast<std::size_t>(page)]; }
    void PageChanged(int page) { changed[static_cast<std::size_t>(page)] = true; }
    void PageUnchanged(int page) { changed[static_cast<std::size_t>(page)] = false; }
    bool ApplyEnabled() const;
    // The pages OK or Apply applies, in the sheet's order.
    std::vector<int> PagesToApply() const;

private:
    bool created[kPageCount] = {};
    bool changed[kPageCount] = {};
};

// The Media Player page's apply: the path is written only when there is one.
bool ApplyMediaPlayerPath(const AppSettings &settings, const std::optional<std::string> &path);

}  // namespace quindar

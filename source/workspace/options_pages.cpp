// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "options_pages.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>

#include "message_table.h"
#include "parser.h"

namespace quindar {

namespace {

constexpr NumberedText kOptionsMessages[] = {
    {kPrecisionFormatTitle, "Precision/Format"},
    {kZeroPrecisionEmpty, "Please Provide An Entry For The Zero Precision!"},
    {kAskApplyToFile, "Would You Like To Apply Your Latest Changes To The Current File In Focus?"},
    {kAskApplyToAll, "Would You Like To Apply Your Latest Changes To All Currently Open Files?"},
    {kAskApplyToVariables,
     "Would You Like To Apply Your Latest Changes To The Currently Defined Variables?"},
    {kAskApplyToEditor, "Would You Like To Apply Your Latest Changes To The Math Editor?"},
};

// The documents an apply reaches: the one in focus, and with all the others after it.
template <typename Each>
void ForTargets(OptionsDocuments documents, bool all, Each &&each) {
    for (std::size_t i = 0; i < documents.size() && (all || i == 0); ++i)
        if (documents[i] != nullptr) each(*documents[i]);
}

}  // namespace

std::string_view OptionsMessageText(int id) {
    return FindNumberedText(kOptionsMessages, id);
}

bool SaveSheetOptions(const AppSettings &settings, const SheetOptions &options) {
    bool written = settings.Write(settings::kWindowWidth, options.windowWidth);
    written = settings.Write(settings::kApplyPrecisionFormatToAll, options.applyPrecisionToAll) &&
              written;
    written = settings.Write(settings::kApplyTrigOptionsToAll, options.applyTrigToAll) && written;
    written = settings.Write(settings::kShowCalcBar, options.showCalcBar) && written;
    written = settings.Write(settings::kCalculationMethod, options.calculationMethod) && written;
    written =
        settings.Write(settings::kUseSquareFunctionBrackets, options.useSquareBrackets) && written;
    return written;
}

bool ApplyMediaPlayerPath(const AppSettings &settings, const std::optional<std::string> &path) {
    return !path || settings.Write(settings::kMediaPlayerPath, *path);
}

ZeroPrecisionStep StepZeroPrecision(std::string_view text, bool up) {
    ZeroPrecisionStep step;
    step.text = std::string(text);
    if (text.empty()) {
        step.messageId = kZeroPrecisionEmpty;
        return step;
    }
    std::size_t sign = 0;
    for (; sign + 1 < text.size(); ++sign)
        if ((text[sign] == '-' || text[sign] == '+') &&
            std::isdigit(static_cast<unsigned char>(text[sign + 1])))
            break;
    if (sign + 1 >= text.size()) return step;
    const int n = std::atoi(std::string(text.substr(sign + 1)).c_str());
    int next = n;
    if (up && n < kHighestZeroExponent) next = n + 1;
    if (!up && n > kLowestZeroExponent) next = n - 1;
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, next < 10 ? "1.0e-0%d" : "1.0e-%d", next);
    step.changed = buffer != step.text;
    step.text = buffer;
    return step;
}

std::string ZeroPrecisionText(float zeroPrecision) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%1.1e", static_cast<double>(zeroPrecision));
    return buffer;
}

PrecisionFormatPage::PrecisionFormatPage(const Parser &current, bool applyAll, int shown)
    : editor(current.answer_format ? *current.answer_format : PrecformType{}),
      variables(current.variable_format ? *current.variable_format : PrecformType{}),
      applyToAll(applyAll),
      window(shown == kVariables ? kVariables : kMathEditor) {}

bool PrecisionFormatPage::Higher() {
    PrecformType &record = ShownRecord();
    if (record.precision >= kHighestPrecision) return false;
    ++record.precision;
    pageDirty = true;
    return true;
}

bool PrecisionFormatPage::Lower() {
    PrecformType &record = ShownRecord();
    if (record.precision <= kLowestPrecision) return false;
    --record.precision;
    pageDirty = true;
    return true;
}

void PrecisionFormatPage::SetScientific(bool scientific) {
    ShownRecord().format = scientific ? kFormatScientific : kFormatDecimal;
    pageDirty = true;
}

void PrecisionFormatPage::SetShowPoint(bool show) {
    ShownRecord().show_decimal_point = show;
    pageDirty = true;
}

void PrecisionFormatPage::SetLeadSign(bool show) {
    ShownRecord().show_lead_sign = show;
    pageDirty = true;
}

ZeroPrecisionStep PrecisionFormatPage::StepZero(std::string_view boxText, bool up) {
    ZeroPrecisionStep step = StepZeroPrecision(boxText, up);
    if (step.changed) {
        // Stored as the engine keeps it, a 32-bit float: from 1.0e-38 down it loses digits,
        // and below about 1.4e-45 it is 0.
        ShownRecord().zero_precision = static_cast<float>(std::strtold(step.text.c_str(), nullptr));
        pageDirty = true;
    }
    return step;
}

int PrecisionFormatPage::QuestionBeforeShowing(int target) const {
    if (!pageDirty || target == window) return 0;
    // Leaving the Variables record asks about the variables, and the other way round.
    return target == kMathEditor ? kAskApplyToVariables : kAskApplyToEditor;
}

void PrecisionFormatPage::ShowWindow(int target) {
    window = target == kVariables ? kVariables : kMathEditor;
}

int PrecisionFormatPage::QuestionBeforeApplyTarget(bool all) const {
    if (!pageDirty) return 0;
    return all ? kAskApplyToAll : kAskApplyToFile;
}

void PrecisionFormatPage::ApplyChanges(OptionsDocuments documents, SheetOptions &options,
                                       const AppSettings *settings) {
    if (pageDirty) {
        ForTargets(documents, applyToAll, [&](OptionsDocument &document) {
            Parser &engine = document.Engine();
            if (engine.answer_format) *engine.answer_format = editor;
            if (engine.variable_format) *engine.variable_format = variables;
        });
        options.applyPrecisionToAll = applyToAll;
    }
    if (!documents.empty() && documents[0] != nullptr) {
        documents[0]->MarkSettingsChanged();
        documents[0]->RefillVariables();
    }
    pageDirty = false;
    if (settings != nullptr) SaveSheetOptions(*settings, options);
}

MathOptionsPage::MathOptionsPage(const Parser &current, const SheetOptions &options)
    : applyToAll(options.applyTrigToAll),
      angleMode(current.angle_mode),
      calculationMethod(options.calculationMethod),
      useSquareBrackets(options.useSquareBrackets) {}

void MathOptionsPage::SetApplyToAll(bool all) {
    applyToAll = all;
    changed = true;
}

void MathOptionsPage::SetAngleMode(int mode) {
    angleMode = mode == 1 ? 1 : 0;
    trigChanged = true;
    changed = true;
}

void MathOptionsPage::SetCalculationMethod(bool enterComputes) {
    calculationMethod = enterComputes;
    changed = true;
}

void MathOptionsPage::SetUseSquareBrackets(bool use) {
    useSquareBrackets = use;
    changed = true;
}

void MathOptionsPage::ApplyChanges(OptionsDocuments documents, SheetOptions &options,
                                   const AppSettings *settings) {
    ForTargets(documents, applyToAll, [&](OptionsDocument &document) {
        if (trigChanged) document.GraphsNeedData();
        document.Engine().angle_mode = angleMode;
    });
    options.applyTrigToAll = applyToAll;
    options.calculationMethod = calculationMethod;
    options.useSquareBrackets = useSquareBrackets;
    ForTargets(documents, true, [&](OptionsDocument &document) {
        document.Engine().use_square_brackets = useSquareBrackets;
    });
    if (!documents.empty() && documents[0] != nullptr) documents[0]->MarkSettingsChanged();
    changed = false;
    trigChanged = false;
    if (settings != nullptr) SaveSheetOptions(*settings, options);
}

bool OptionsSheetState::Show(int page) {
    if (page < 0 || page >= kPageCount || created[page]) return false;
    created[page] = true;
    return true;
}

bool OptionsSheetState::ApplyEnabled() const {
    for (bool pageChanged : changed)
        if (pageChanged) return true;
    return false;
}

std::vector<int> OptionsSheetState::PagesToApply() const {
    std::vector<int> pages;
    for (int page = 0; page < kPageCount; ++page)
        if (created[page]) pages.push_back(page);
    return pages;
}

}  // namespace quindar

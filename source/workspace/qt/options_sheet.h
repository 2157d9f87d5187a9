// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Options sheet: the Precision/Format, Mathematical and Media Player pages, each made the
// first time its tab shows. OK and Apply apply the pages that were made; Apply is enabled
// while a page holds a change. Enter presses OK. The rules are the pages' models.

#include <QDialog>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "options_pages.h"

class QDialogButtonBox;
class QTabWidget;

namespace quindar {

class DocumentWindow;
class MathOptionsTab;
class MediaPlayerTab;
class PrecisionFormatTab;
class Workbench;

// A document as the Options pages reach it.
class DocumentOptionsTarget : public OptionsDocument {
public:
    explicit DocumentOptionsTarget(DocumentWindow &document) : document(document) {}
    Parser &Engine() override;
    void MarkSettingsChanged() override;
    void RefillVariables() override;
    void GraphsNeedData() override;

private:
    DocumentWindow &document;
};

class OptionsSheet : public QDialog {
    Q_OBJECT
public:
    explicit OptionsSheet(Workbench &workbench, QWidget *parent = nullptr);
    ~OptionsSheet() override;

    Workbench &Bench() { return workbench; }
    OptionsSheetState &State() { return state; }
    SheetOptions &Options() { return options; }
    // The current document first, then the other open ones.
    OptionsDocuments Documents();

    QTabWidget &Tabs() { return *tabs; }
    QDialogButtonBox &Buttons() { return *buttons; }
    PrecisionFormatTab *PrecisionPage() { return precisionPage; }
    MathOptionsTab *MathPage() { return mathPage; }
    MediaPlayerTab *MediaPage() { return mediaPage; }

    // A page reports a change, or that its changes were applied.
    void PageChanged(int page);
    void PageUnchanged(int page);
    // OK and Apply: every page made so far applies, then the program takes the options.
    void Apply();
    void accept() override;

private:
    void ShowPage(int page);
    void TakeOptions();

    Workbench &workbench;
    OptionsSheetState state;
    SheetOptions options;
    std::vector<std::unique_ptr<DocumentOptionsTarget>> targets;
    std::vector<OptionsDocument *> targetList;
    QTabWidget *tabs = nullptr;
    QDialogButtonBox *buttons = nullptr;
    PrecisionFormatTab *precisionPage = nullptr;
    MathOptionsTab *mathPage = nullptr;
    MediaPlayerTab *mediaPage = nullptr;
};

}  // namespace quindar

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Calculus sheet of one document: the Integration and Differentiation pages under tabs,
// modeless, a child window of its document so that it goes with it. While a page computes the
// other page can't be chosen and the sheet refuses to close, with the page's message once per
// run.

#include <QDialog>
#include <array>

#include "document_close_rules.h"

class QTabWidget;

namespace quindar {

class CalculusPage;
class DifferentiationPage;
class DocumentWindow;
class IntegrationPage;
class Workbench;

class CalculusSheet : public QDialog {
    Q_OBJECT
public:
    // `page` 0 shows Integration first, 1 Differentiation; `function` preselects a function.
    CalculusSheet(Workbench &workbench, DocumentWindow &document, const QString &function,
                  int page);

    IntegrationPage &Integration() { return *integration; }
    DifferentiationPage &Differentiation() { return *differentiation; }
    QTabWidget &Tabs() { return *tabBook; }
    std::array<CalculusPage *, 2> Pages() const;
    int CurrentPage() const;
    void SelectPage(int page);
    // What the document reports while one of the pages runs.
    DocumentActivity Activity() const;
    // Both pages' boxes into the document's settings.
    void Apply();
    void ReloadFunctionList();

    void done(int result) override;

protected:
    bool event(QEvent *event) override;

private:
    void RunStarted(QWidget *page);
    void RunFinished();
    bool CanClose();

    DocumentWindow &document;
    QTabWidget *tabBook = nullptr;
    IntegrationPage *integration = nullptr;
    DifferentiationPage *differentiation = nullptr;
};

// The page in front when the document's sheet last closed: 0 Integration, 1 Differentiation.
int LastCalculusPage(const DocumentWindow &document);

}  // namespace quindar

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The modeless Graph Setup sheet of one document: seven pages under tabs, the row of Prev,
// Help and Next under them, and OK, Cancel and Apply. A page may refuse to be left: the tab
// bar's clicks and keys ask the page showing first, since a tab widget cannot refuse a change
// by itself. It is the window the page rules talk to (SetupUi).

#include <QDialog>
#include <QPoint>
#include <array>
#include <memory>
#include <optional>
#include <set>

#include "setup_page_widgets.h"
#include "setup_pages.h"
#include "setup_ui.h"

class QDialogButtonBox;
class QPushButton;
class QTabWidget;

namespace quindar {

class GraphsPageModel;
class SetupGraphWindow;

// What makes each page, in the sheet's order.
using SetupPageMaker = MadeSetupPage (*)(SetupPageContext &, QWidget *);
using SetupPageMakers = std::array<SetupPageMaker, kSetupPageCount>;
extern const SetupPageMakers kSetupPageMakers;

class GraphSetupSheet : public QDialog, public SetupUi {
    Q_OBJECT
public:
    // `at`: the top left corner on the screen; none centres the sheet. `makers`: pages other
    // than the program's own.
    GraphSetupSheet(Workbench &workbench, DocumentWindow &document, GraphSetupSession &session,
                    std::optional<QPoint> at, const SetupPageMakers &makers = kSetupPageMakers);
    ~GraphSetupSheet() override;

    QTabWidget &Tabs() { return *tabs; }
    SetupPageWidget *PageWidget(int index) const {
        return widgets[static_cast<std::size_t>(index)];
    }
    GraphsPageModel &GraphsModel() const;
    QPushButton &PrevButton() { return *prevButton; }
    QPushButton &HelpButton() { return *helpButton; }
    QPushButton &NextButton() { return *nextButton; }
    QPushButton &ApplyButton() { return *applyButton; }

    // Asks the page showing whether it may be left, then shows page `index`. False when the
    // page refused.
    bool RequestPage(int index);
    // The sheet's Apply: false when it was refused.
    bool Apply();
    // Finish: the graph is built, applied, and the sheet goes.
    void Finish();
    bool PagesEnabled() const { return pagesEnabled; }

    // SetupUi
    int Message(int textId, std::initializer_list<std::string_view> fields,
                unsigned flags) override;
    void Sound(std::string_view file) override;
    void SelectPage(int index) override;
    int ShowingPage() const override;
    void FocusControl(int index, int controlId) override;
    void PageChanged() override;
    void PageUnchanged(int index) override;
    void FocusEditor() override;
    bool AddEditFunction(const std::string &name, const std::string &value) override;
    bool EditVariable(const std::string &name) override;
    void EnableGraphSetup(bool enable) override;
    void OpenFunctionManager(const std::string &name) override;
    void OpenFunctionLibrary() override;
    void ShowText(std::string_view text, std::string_view caption) override;
    void AddError(std::string_view text) override;

    void done(int result) override;

signals:
    // The sheet is going; the tool bar's button comes up.
    void closing();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    // Back in front, the Functions page takes what the Math Editor declared meanwhile.
    bool event(QEvent *event) override;

private:
    void ShowPage(int index);
    void UpdateButtonRow();
    void UpdateApply();
    void LeftButton();
    void RightButton();
    bool TabKey(const QKeyEvent &key);

    Workbench &workbench;
    DocumentWindow &document;
    GraphSetupSession &session;
    QTabWidget *tabs = nullptr;
    QPushButton *prevButton = nullptr;
    QPushButton *helpButton = nullptr;
    QPushButton *nextButton = nullptr;
    QDialogButtonBox *buttons = nullptr;
    QPushButton *applyButton = nullptr;
    std::array<std::unique_ptr<SetupPageModel>, kSetupPageCount> models;
    std::array<SetupPageWidget *, kSetupPageCount> widgets{};
    std::set<int> changedPages;
    int shown = -1;
    bool leaving = false;
    bool refreshing = false;
    bool pagesEnabled = true;
};

}  // namespace quindar

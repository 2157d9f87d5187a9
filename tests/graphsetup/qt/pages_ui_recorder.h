// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The sheet as the page widgets see it, recorded: message boxes answered from a script in
// order (any other box is noted as unexpected and answered as Escape would), pages selected,
// and the focus given to a control the way the sheet gives it: by its number, from the event
// loop.

#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "message_box_rules.h"
#include "page_controls.h"
#include "setup_ui.h"
#include "string_table.h"

namespace quindar::testing {

class PagesUiRecorder : public SetupUi {
public:
    void Expect(int id, int answer = kIdOk) { script.push_back({id, answer}); }

    int Message(int textId, std::initializer_list<std::string_view> fields,
                unsigned flags) override {
        std::string text(application_strings().Get(textId));
        for (std::string_view field : fields) {
            const std::size_t at = text.find('%');
            if (at == std::string::npos) break;
            text.replace(at, 2, field);
        }
        shown << QString::fromStdString(text);
        if (script.empty() || script.front().first != textId) {
            unexpected << QString::number(textId) + QStringLiteral(": ") + shown.back();
            return box_escape_result(box_style(flags).buttons);
        }
        const int answer = script.front().second;
        script.pop_front();
        return answer;
    }
    void Sound(std::string_view) override {}
    void ShowText(std::string_view text, std::string_view) override {
        unexpected << QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    void AddError(std::string_view text) override {
        unexpected << QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    void SelectPage(int index) override { selected.push_back(index); }
    int ShowingPage() const override { return selected.empty() ? -1 : selected.back(); }
    void FocusControl(int, int controlId) override {
        focused.push_back(controlId);
        if (page == nullptr) return;
        for (QWidget *control : page->findChildren<QWidget *>())
            if (control->property(kControlIdProperty).toInt() == controlId) {
                QPointer<QWidget> target(control);
                QTimer::singleShot(0, control, [target] {
                    if (target) target->setFocus(Qt::OtherFocusReason);
                });
            }
    }
    void PageChanged() override { ++pageChanged; }
    void PageUnchanged(int index) override { unchanged.push_back(index); }
    void FocusEditor() override {}
    bool AddEditFunction(const std::string &, const std::string &) override { return false; }
    bool EditVariable(const std::string &name) override {
        editedVariables.push_back(name);
        return true;
    }

    // What the script did not foresee, and what it foresaw that never came.
    QString Leftovers() const {
        QStringList problems = unexpected;
        for (const auto &box : script) problems << QStringLiteral("never shown: %1").arg(box.first);
        return problems.join(QLatin1Char('\n'));
    }

    // The page whose controls FocusControl looks for.
    QWidget *page = nullptr;
    std::deque<std::pair<int, int>> script;
    QStringList shown;
    QStringList unexpected;
    std::vector<int> selected;
    std::vector<int> focused;
    int pageChanged = 0;
    std::vector<int> unchanged;
    std::vector<std::string> editedVariables;
};

}  // namespace quindar::testing

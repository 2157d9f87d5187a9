// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The window of one Graph Setup page over its model.

#include <QWidget>

namespace quindar {

class SetupPageModel;

class SetupPageWidget : public QWidget {
    Q_OBJECT
public:
    SetupPageWidget(SetupPageModel &model, QWidget *parent) : QWidget(parent), model(model) {}

    SetupPageModel &Model() { return model; }

    // Refills the controls from the working copy.
    virtual void UpdatePage() = 0;
    // The page comes to the front: the model's SetActive, then the controls.
    virtual void SetActive();
    // Whether the page may be left; a refusal has shown its message and kept the focus.
    virtual bool KillActive() { return true; }
    // The sheet's Next and Prev buttons on this page.
    virtual void Next();
    virtual void Prev();
    // Enables or disables the controls while a build runs.
    virtual void EnablePage(bool enable) { setEnabled(enable); }

private:
    SetupPageModel &model;
};

}  // namespace quindar

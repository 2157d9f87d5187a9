// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "setup_page_widget.h"

#include "setup_page_model.h"

namespace quindar {

void SetupPageWidget::Next() {
    model.Next();
}

void SetupPageWidget::Prev() {
    model.Prev();
}

void SetupPageWidget::SetActive() {
    model.SetActive();
    UpdatePage();
}

}  // namespace quindar

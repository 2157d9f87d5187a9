// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The guard of a calculus page against closing during a run.

#include "calculus_page.h"

#include "workbench.h"

namespace quindar {

CalculusPage::CalculusPage(Workbench &bench, DocumentWindow &owner, int titleId, int runningMessage,
                           int managerMessage, QWidget *parent)
    : QWidget(parent),
      workbench(bench),
      document(owner),
      host(bench, this),
      guard(runningMessage, managerMessage),
      title(titleId) {}

bool CalculusPage::CanClose() {
    const calculus::CloseDecision decision = guard.can_close(false);
    if (decision.message != 0)
        workbench.Messages().ShowPlain(this, CalculusText(decision.message), CalculusText(title),
                                       kBoxWarning);
    return decision.allowed;
}

}  // namespace quindar

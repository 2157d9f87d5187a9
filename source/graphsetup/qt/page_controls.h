// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the Variables, Labels, Types and Colors pages do with their controls alike: each
// carries its numbered id (the sheet finds a control by it to give it the focus) and an
// accessible name; a refused edit gets the focus back once the refusal has run its course.

#include <QString>

class QLineEdit;
class QWidget;

namespace quindar {

// The dynamic property that holds a control's number.
inline constexpr const char *kControlIdProperty = "controlId";

// Gives the control its number, object name and accessible name.
void name_control(QWidget *control, int controlId, const QString &accessibleName);

// The focus goes back to the edit, its text selected, from the event loop: giving it back
// from inside the focus change that refused it would start a loop.
void focus_back_later(QLineEdit *edit);

}  // namespace quindar

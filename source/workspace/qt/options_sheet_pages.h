// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The three pages of the Options sheet as widgets over their models.

#include <QWidget>

#include "media_player_page.h"
#include "options_pages.h"

class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;

namespace quindar {

class OptionsSheet;

class PrecisionFormatTab : public QWidget {
    Q_OBJECT
public:
    explicit PrecisionFormatTab(OptionsSheet &sheet);

    PrecisionFormatPage &Model() { return page; }
    void Apply();

    QPushButton *higher = nullptr;
    QPushButton *lower = nullptr;
    QToolButton *zeroUp = nullptr;
    QToolButton *zeroDown = nullptr;
    QLineEdit *precision = nullptr;
    QLineEdit *zeroPrecision = nullptr;
    QRadioButton *applyToFile = nullptr;
    QRadioButton *applyToAll = nullptr;
    QRadioButton *decimal = nullptr;
    QRadioButton *scientific = nullptr;
    QCheckBox *showPoint = nullptr;
    QCheckBox *leadSign = nullptr;
    QRadioButton *mathEditor = nullptr;
    QRadioButton *variables = nullptr;

private:
    void LoadControls();
    void Changed();
    void StepPrecision(bool up);
    void StepZero(bool up);
    void ShowRecord(int window);
    void ChooseTarget(bool all);

    OptionsSheet &sheet;
    PrecisionFormatPage page;
};

class MathOptionsTab : public QWidget {
    Q_OBJECT
public:
    explicit MathOptionsTab(OptionsSheet &sheet);

    MathOptionsPage &Model() { return page; }
    void Apply();

    QRadioButton *applyToFile = nullptr;
    QRadioButton *applyToAll = nullptr;
    QRadioButton *degrees = nullptr;
    QRadioButton *radians = nullptr;
    QRadioButton *enterComputes = nullptr;
    QRadioButton *shiftEnterComputes = nullptr;
    QCheckBox *squareBrackets = nullptr;

private:
    OptionsSheet &sheet;
    MathOptionsPage page;
};

class MediaPlayerTab : public QWidget {
    Q_OBJECT
public:
    explicit MediaPlayerTab(OptionsSheet &sheet);

    MediaPlayerPage &Model() { return page; }
    void Apply();

    QLineEdit *path = nullptr;
    QPushButton *find = nullptr;
    QCheckBox *useDefault = nullptr;

private:
    void Refresh();
    std::string SystemPlayer() const;

    OptionsSheet &sheet;
    MediaPlayerPage page;
};

}  // namespace quindar

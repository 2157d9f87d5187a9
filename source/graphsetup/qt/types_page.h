// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Types page: the thirteen 2-D types and the 3-D attributes; only the group of the
// graph's own dimension can be used.

#include <utility>
#include <vector>

#include "setup_page_widget.h"
#include "types_page_model.h"

class QAbstractButton;
class QButtonGroup;
class QGroupBox;

namespace quindar {

class TypesPage : public SetupPageWidget {
    Q_OBJECT
public:
    TypesPage(TypesPageModel &pageModel, QWidget *parent);

    void UpdatePage() override;

    QGroupBox *TwoDGroup() const { return group2D; }
    QGroupBox *ThreeDGroup() const { return group3D; }
    // The button of a 2-D type by its stored value, of a 3-D control by its id.
    QAbstractButton *TypeButton(int stored) const;
    QAbstractButton *AttributeButton(int controlId) const;

private:
    QWidget *Make2DGroup();
    QWidget *Make3DGroup();

    TypesPageModel &model;
    QGroupBox *group2D = nullptr;
    QGroupBox *group3D = nullptr;
    QButtonGroup *types = nullptr;
    // The 3-D controls with the digit each sets: digit 7 has "Bar" (sets 1) and "Surface" (0).
    struct Attribute {
        QAbstractButton *button;
        int digit;
        bool onMeans;
    };
    std::vector<Attribute> attributes;
};

}  // namespace quindar

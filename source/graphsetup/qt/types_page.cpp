// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "types_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "graph_pages_messages.h"
#include "graph_types.h"
#include "page_controls.h"
#include "setup_page_widgets.h"

namespace quindar {

namespace {

// The 2-D types stand in two columns of the group.
constexpr int kTypeRows = 7;

}  // namespace

TypesPage::TypesPage(TypesPageModel &pageModel, QWidget *parent)
    : SetupPageWidget(pageModel, parent), model(pageModel) {
    setAccessibleName(QStringLiteral("Types"));
    auto *groups = new QHBoxLayout;
    groups->addWidget(Make2DGroup(), 3);
    groups->addWidget(Make3DGroup(), 2);
    auto *page = new QVBoxLayout(this);
    page->addLayout(groups);
    page->addStretch(1);
}

QWidget *TypesPage::Make2DGroup() {
    group2D = new QGroupBox(QStringLiteral("2D Graph Types"));
    name_control(group2D, kControl2DTypes, QStringLiteral("2D Graph Types"));
    auto *grid = new QGridLayout(group2D);
    types = new QButtonGroup(this);
    int place = 0;
    for (const GraphType2DInfo &type : graph_types_2d()) {
        auto *radio = new QRadioButton(QString::fromLatin1(type.name));
        name_control(radio, type.controlId, QString::fromLatin1(type.name));
        types->addButton(radio, type.stored);
        grid->addWidget(radio, place % kTypeRows, place / kTypeRows);
        ++place;
    }
    connect(types, &QButtonGroup::idClicked, this,
            [this](int stored) { model.Choose2DType(stored); });
    return group2D;
}

QWidget *TypesPage::Make3DGroup() {
    group3D = new QGroupBox(QStringLiteral("3D Graph Types"));
    name_control(group3D, kControl3DAttributes, QStringLiteral("3D Graph Types"));
    auto *column = new QVBoxLayout(group3D);
    for (const GraphAttribute3DInfo &info : graph_attributes_3d()) {
        if (info.digit == kBarOrSurfaceDigit) continue;
        auto *box = new QCheckBox(QString::fromLatin1(info.name));
        name_control(box, info.controlId, QString::fromLatin1(info.name));
        column->addWidget(box);
        attributes.push_back({box, info.digit, true});
    }
    // Digit 7 is one flag shown as a choice between two buttons.
    auto *shape = new QHBoxLayout;
    auto *bar = new QRadioButton(QStringLiteral("Bar"));
    auto *surface = new QRadioButton(QStringLiteral("Surface"));
    for (const GraphAttribute3DInfo &info : graph_attributes_3d())
        if (info.digit == kBarOrSurfaceDigit)
            name_control(bar, info.controlId, QString::fromLatin1(info.name));
    name_control(surface, kSurfaceControlId, QStringLiteral("Surface"));
    auto *shapes = new QButtonGroup(this);
    shapes->addButton(bar);
    shapes->addButton(surface);
    shape->addWidget(bar);
    shape->addWidget(surface);
    column->addLayout(shape);
    column->addStretch(1);
    shape->addStretch(1);
    attributes.push_back({bar, kBarOrSurfaceDigit, true});
    attributes.push_back({surface, kBarOrSurfaceDigit, false});
    for (const Attribute &attribute : attributes) {
        connect(attribute.button, &QAbstractButton::clicked, this, [this, attribute](bool on) {
            // A radio button clicked is on; the check boxes give their own state.
            model.Set3DAttribute(attribute.digit, on == attribute.onMeans);
        });
    }
    return group3D;
}

QAbstractButton *TypesPage::TypeButton(int stored) const {
    return types->button(stored);
}

QAbstractButton *TypesPage::AttributeButton(int controlId) const {
    for (const Attribute &attribute : attributes)
        if (attribute.button->property(kControlIdProperty).toInt() == controlId)
            return attribute.button;
    return nullptr;
}

void TypesPage::UpdatePage() {
    // All marks off first: a group the graph can't use shows none.
    types->setExclusive(false);
    for (QAbstractButton *button : types->buttons()) button->setChecked(false);
    for (const Attribute &attribute : attributes) {
        if (auto *group = attribute.button->group()) group->setExclusive(false);
        attribute.button->setChecked(false);
    }
    const bool twoD = model.TwoDEnabled();
    const bool threeD = model.ThreeDEnabled();
    group2D->setEnabled(twoD);
    group3D->setEnabled(threeD);
    if (twoD)
        if (QAbstractButton *type = TypeButton(model.Type2D())) type->setChecked(true);
    if (threeD)
        for (const Attribute &attribute : attributes)
            attribute.button->setChecked(model.Attribute3D(attribute.digit) == attribute.onMeans);
    types->setExclusive(true);
    for (const Attribute &attribute : attributes)
        if (auto *group = attribute.button->group()) group->setExclusive(true);
}

MadeSetupPage make_types_page(SetupPageContext &context, QWidget *parent) {
    auto model = std::make_unique<TypesPageModel>(context.session, context.ui);
    auto *widget = new TypesPage(*model, parent);
    return {std::move(model), widget};
}

}  // namespace quindar

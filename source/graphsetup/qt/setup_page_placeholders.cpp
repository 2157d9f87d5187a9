// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Stand-ins for the Points, Variables, Labels, Types and Colors pages until their own widgets
// come: each names its page and checks nothing.

#include <QLabel>
#include <QVBoxLayout>

#include "setup_page_model.h"
#include "setup_page_widget.h"
#include "setup_page_widgets.h"
#include "setup_pages.h"

namespace quindar {

namespace {

class PlaceholderModel : public SetupPageModel {
public:
    PlaceholderModel(GraphSetupSession &session, SetupUi &ui, int index)
        : SetupPageModel(session, ui), index(index) {}
    int Index() const override { return index; }

private:
    int index;
};

class PlaceholderPage : public SetupPageWidget {
public:
    PlaceholderPage(SetupPageModel &model, QWidget *parent) : SetupPageWidget(model, parent) {
        auto *layout = new QVBoxLayout(this);
        const std::string_view tab = kSetupPages[static_cast<std::size_t>(model.Index())].tab;
        auto *label =
            new QLabel(QString::fromUtf8(tab.data(), static_cast<qsizetype>(tab.size())), this);
        label->setAccessibleName(label->text());
        layout->addWidget(label);
    }
    void UpdatePage() override {}
};

MadeSetupPage MakePlaceholder(SetupPageContext &context, QWidget *parent, int index) {
    MadeSetupPage made;
    made.model = std::make_unique<PlaceholderModel>(context.session, context.ui, index);
    made.widget = new PlaceholderPage(*made.model, parent);
    return made;
}

}  // namespace

MadeSetupPage make_points_page(SetupPageContext &context, QWidget *parent) {
    return MakePlaceholder(context, parent, kPagePoints);
}
MadeSetupPage make_variables_page(SetupPageContext &context, QWidget *parent) {
    return MakePlaceholder(context, parent, kPageVariables);
}
MadeSetupPage make_labels_page(SetupPageContext &context, QWidget *parent) {
    return MakePlaceholder(context, parent, kPageLabels);
}
MadeSetupPage make_types_page(SetupPageContext &context, QWidget *parent) {
    return MakePlaceholder(context, parent, kPageTypes);
}
MadeSetupPage make_colors_page(SetupPageContext &context, QWidget *parent) {
    return MakePlaceholder(context, parent, kPageColors);
}

}  // namespace quindar

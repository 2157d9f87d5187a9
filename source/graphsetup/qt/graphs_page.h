// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Graphs page: the name box, Add, Edit and Delete, the sorted "Graph List", "Build Graph",
// "Check Graph" and the "Graph Errors" list, over GraphsPageModel.

#include "setup_page_widget.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace quindar {

class GraphsPageModel;

class GraphsPage : public SetupPageWidget {
    Q_OBJECT
public:
    GraphsPage(GraphsPageModel &model, QWidget *parent);

    void UpdatePage() override;
    bool KillActive() override;

    QLineEdit &NameBox() { return *nameBox; }
    QListWidget &GraphList() { return *graphList; }
    QListWidget &ErrorList() { return *errorList; }
    QPushButton &AddButton() { return *addButton; }
    QPushButton &EditButton() { return *editButton; }
    QPushButton &DeleteButton() { return *deleteButton; }
    QPushButton &BuildButton() { return *buildButton; }
    QPushButton &CheckButton() { return *checkButton; }

private:
    // Runs a rule of the model, then shows what it left.
    template <typename Rule>
    void Do(Rule rule);

    GraphsPageModel &graphs;
    QLineEdit *nameBox = nullptr;
    QListWidget *graphList = nullptr;
    QListWidget *errorList = nullptr;
    QPushButton *addButton = nullptr;
    QPushButton *editButton = nullptr;
    QPushButton *deleteButton = nullptr;
    QPushButton *buildButton = nullptr;
    QPushButton *checkButton = nullptr;
};

}  // namespace quindar

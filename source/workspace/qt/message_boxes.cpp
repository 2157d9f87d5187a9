// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "message_boxes.h"

#include <QMessageBox>
#include <string>
#include <vector>

#include "string_table.h"

namespace quindar {
namespace {

struct IconMapping {
    BoxIcon icon;
    QMessageBox::Icon qtIcon;
};

constexpr IconMapping kIcons[] = {
    {BoxIcon::None, QMessageBox::NoIcon},
    {BoxIcon::Error, QMessageBox::Critical},
    {BoxIcon::Question, QMessageBox::Question},
    {BoxIcon::Warning, QMessageBox::Warning},
    {BoxIcon::Information, QMessageBox::Information},
};

struct ButtonMapping {
    QMessageBox::StandardButton button;
    int result;
};

constexpr ButtonMapping kResults[] = {
    {QMessageBox::Ok, kIdOk},
    {QMessageBox::Cancel, kIdCancel},
    {QMessageBox::Yes, kIdYes},
    {QMessageBox::No, kIdNo},
};

QMessageBox::StandardButtons QtButtons(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case BoxButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case BoxButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case BoxButtons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

}  // namespace

QString ui_string(int id) {
    const std::string_view text = application_strings().Get(id);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

int present_message_box(const BoxRequest &request) {
    const BoxStyle style = box_style(request.flags);
    QMessageBox box(request.parent);
    for (const IconMapping &icon : kIcons)
        if (icon.icon == style.icon) box.setIcon(icon.qtIcon);
    box.setWindowTitle(request.title);
    box.setText(request.text);
    box.setStandardButtons(QtButtons(style.buttons));
    box.setWindowModality(Qt::ApplicationModal);
    box.setAccessibleName(request.title);
    const int pressed = box.exec();
    for (const ButtonMapping &mapping : kResults)
        if (mapping.button == pressed) return mapping.result;
    return box_escape_result(style.buttons);
}

int MessageBoxes::Present(QWidget *parent, const QString &text, const QString &title,
                          unsigned flags) {
    if (parent == nullptr && defaultParent) parent = defaultParent();
    BoxRequest request;
    request.parent = parent;
    request.text = QString::fromUtf8(limit_box_text(text.toStdString(), kBoxTextLimit));
    request.title = QString::fromUtf8(limit_box_text(title.toStdString(), kBoxTitleLimit));
    request.flags = flags;
    return presenter ? presenter(request) : kBoxNotShown;
}

int MessageBoxes::Show(QWidget *parent, const QString &text, int titleId, unsigned flags) {
    return Present(parent, text, ui_string(titleId), flags);
}

int MessageBoxes::ShowPlain(QWidget *parent, const QString &text, const QString &title,
                            unsigned flags) {
    return Present(parent, text, title, flags);
}

int MessageBoxes::Show(QWidget *parent, int textId, int titleId, unsigned flags) {
    return Present(parent, ui_string(textId), ui_string(titleId), flags);
}

int MessageBoxes::Show(QWidget *parent, int textId,
                       std::initializer_list<std::string_view> arguments, int titleId,
                       unsigned flags) {
    const std::vector<std::string_view> list(arguments);
    const auto text = format_message(application_strings().Get(textId), list);
    if (!text) return kBoxNotShown;
    return Present(parent, QString::fromStdString(*text), ui_string(titleId), flags);
}

int MessageBoxes::ShowNumber(QWidget *parent, int textId, int value, int titleId, unsigned flags) {
    const auto text = format_message(application_strings().Get(textId), value);
    if (!text) {
        const auto report =
            format_message(application_strings().Get(kMsgFormatSpecifierMissing), textId);
        if (report) Present(parent, QString::fromStdString(*report), ui_string(titleId), flags);
        return kBoxNotShown;
    }
    return Present(parent, QString::fromStdString(*text), ui_string(titleId), flags);
}

}  // namespace quindar

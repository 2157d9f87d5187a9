// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The engine and the rules speak UTF-8 bytes, the widgets QString.

#include <QString>
#include <string>
#include <string_view>

namespace quindar {

inline QString FromBytes(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string ToBytes(const QString &text) {
    return text.toUtf8().toStdString();
}

}  // namespace quindar

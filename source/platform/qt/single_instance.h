// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One running program per user: a later start hands its file to the first and ends.

#include <QObject>
#include <QString>

class QLocalServer;

namespace quindar {

class SingleInstance : public QObject {
    Q_OBJECT
public:
    // The socket of a user's program: $XDG_RUNTIME_DIR/quindar-<uid>.
    static QString defaultServerName();

    explicit SingleInstance(QString serverName = defaultServerName(), QObject *parent = nullptr);
    ~SingleInstance() override;

    // True when this process is now the one instance and listens for later starts. False when
    // another instance runs: it has then been given file (empty: none) and asked to come to
    // the front, and this process should end. A socket left by a program that died is
    // replaced. Writes nothing but the socket.
    bool claim(const QString &file);

    const QString &serverName() const { return serverName_; }

signals:
    // A later start asked to be shown; file is what it was given, empty for none.
    void activationRequested(const QString &file);

private:
    bool listen();
    // False when no instance accepts the connection.
    bool handOver(const QString &file);
    void readConnection();

    QString serverName_;
    QLocalServer *server_ = nullptr;
};

}  // namespace quindar

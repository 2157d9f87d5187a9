// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Plays the program's short wave files from its Sounds folder.

#include <QHash>
#include <QObject>
#include <QString>

namespace quindar {

class SoundPlayer : public QObject {
    Q_OBJECT
public:
    explicit SoundPlayer(QString soundsFolder, QObject *parent = nullptr);
    ~SoundPlayer() override;

    void setEnabled(bool on) { enabled_ = on; }
    bool isEnabled() const { return enabled_; }

    // Starts a sound such as "QClick.wav" and returns at once: a click waited for in a nested
    // event loop would let other commands in. True when sound is on and the file exists; with
    // no audio device nothing is heard, and the answer is the same.
    bool play(const QString &name);

    // Whether the machine has a device to play on; false without Qt Multimedia.
    static bool hasAudioDevice();

private:
    QString folder_;
    bool enabled_ = true;
    QHash<QString, QObject *> effects_;  // one preloaded player per file
};

}  // namespace quindar

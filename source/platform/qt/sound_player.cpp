// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "sound_player.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#ifdef QUINDAR_HAVE_MULTIMEDIA
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#endif

namespace quindar {

SoundPlayer::SoundPlayer(QString soundsFolder, QObject *parent)
    : QObject(parent), folder_(std::move(soundsFolder)) {}

SoundPlayer::~SoundPlayer() = default;

bool SoundPlayer::hasAudioDevice() {
#ifdef QUINDAR_HAVE_MULTIMEDIA
    return !QMediaDevices::audioOutputs().isEmpty();
#else
    return false;
#endif
}

bool SoundPlayer::play(const QString &name) {
    if (!enabled_ || name.isEmpty()) return false;
    const QString path = QDir(folder_).filePath(name);
    if (!QFileInfo(path).isFile()) return false;
    if (!hasAudioDevice()) return true;
#ifdef QUINDAR_HAVE_MULTIMEDIA
    auto *effect = static_cast<QSoundEffect *>(effects_.value(name));
    if (effect == nullptr) {
        effect = new QSoundEffect(this);
        effect->setSource(QUrl::fromLocalFile(path));
        effects_.insert(name, effect);
    }
    effect->play();
#endif
    return true;
}

}  // namespace quindar

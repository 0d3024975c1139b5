#include "ui/sound.h"

#include <QSoundEffect>
#include <QUrl>

namespace mc::ui {

Sound::Sound(QObject* parent) : QObject(parent) {}

void Sound::Play(const QString& file, int times) {
  if (times <= 0) return;
  requested_ += times;
  if (qEnvironmentVariableIsSet("CODEX_SILENT")) return;
  if (!effect_) effect_ = new QSoundEffect(this);
  effect_->setSource(QUrl::fromLocalFile(file));
  effect_->setLoopCount(times);
  effect_->play();
}

}  // namespace mc::ui

// Sounds of the program folder (reminder.wav and the like). A machine without
// an audio device plays nothing and says nothing.
#pragma once

#include <QObject>
#include <QString>

class QSoundEffect;

namespace mc::ui {

class Sound : public QObject {
  Q_OBJECT
 public:
  explicit Sound(QObject* parent = nullptr);
  // Plays a WAV file `times` times in a row, without waiting.
  void Play(const QString& file, int times);
  // How many plays were asked for since the start (for tests).
  int Requested() const { return requested_; }

 private:
  QSoundEffect* effect_ = nullptr;
  int requested_ = 0;
};

}  // namespace mc::ui

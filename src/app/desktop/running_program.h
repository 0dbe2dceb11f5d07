// The one running program of a session, known on the session's bus as org.korvel.Brevant. A second start
// finds it there, hands over what it was started with and ends; file managers and menus reach it the same way
// (org.freedesktop.Application). Without a bus the program stands alone and all goes on. Made by main(), on
// the user-interface thread.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <chrono>
#include <future>
#include <optional>
#include <string>

#include "app/desktop/program_door.h"

namespace brevant {

class TCRunningProgram : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  // Asks for the name, on a thread of its own: the toolkit needs some milliseconds to reach a bus. An empty
  // address is the session's bus.
  explicit TCRunningProgram(const QString& busAddress = {});
  ~TCRunningProgram() override;

  enum class TCStanding {
    Alone,   // there is no bus, or it does not give the name
    First,   // the name is ours: whoever starts after us finds us
    Second,  // another program has it
  };
  // Waits until that is known.
  [[nodiscard]] TCStanding Standing();

  // From now on the door is knocked at. It outlives this.
  void Serve(TCProgramDoor& programDoor) { door = &programDoor; }

  enum class TCHandOver {
    Done,
    DialogOpen,  // and nothing was opened
    NoAnswer,    // or none but that it refuses the file for good
    Gone,        // it ended instead, and this one is the first now
  };
  // Second only: has the first one open a file, by its absolute native name, or come forward without one.
  // `platformData` as PlatformData() read it. Waits for the answer, `patience` at most: longer than a program
  // that ends takes to get its document onto a slow stick.
  [[nodiscard]] TCHandOver HandOver(const std::optional<std::string>& nativeName,
                                    const QVariantMap& platformData,
                                    std::chrono::milliseconds patience = std::chrono::seconds(10));

  // The desktop's leave to take the keys, from the environment. To be read before the toolkit stands: that
  // takes it out.
  [[nodiscard]] static QVariantMap PlatformData();

 public Q_SLOTS:
  Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
  Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
  Q_SCRIPTABLE void ActivateAction(const QString& action, const QVariantList& parameter,
                                   const QVariantMap& platformData);

 private:
  [[nodiscard]] TCStanding Register(const QString& busAddress);
  [[nodiscard]] TCStanding TakeName() const;

  // Each has its own, so that several can stand in one process.
  const QString connectionName;
  std::future<TCStanding> asked;
  std::optional<TCStanding> standing;
  TCProgramDoor* door = nullptr;
};

}  // namespace brevant

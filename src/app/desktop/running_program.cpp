#include "app/desktop/running_program.h"

#include <QDBusMessage>
#include <QScopeGuard>
#include <atomic>
#include <thread>

#include "app/desktop/file_address.h"

namespace brevant {
namespace {

const QString kBusName = QStringLiteral("org.korvel.Brevant");
const QString kObjectPath = QStringLiteral("/org/korvel/Brevant");
const QString kInterface = QStringLiteral("org.freedesktop.Application");
const QString kDialogOpen = QStringLiteral("org.korvel.Brevant.Error.DialogOpen");

constexpr unsigned kDoNotQueue = 4;
constexpr unsigned kPrimaryOwner = 1;
constexpr unsigned kExists = 3;
constexpr int kBusPatience = 1000;  // milliseconds
constexpr std::chrono::milliseconds kBeforeAskingAgain(20);
constexpr const char* kActivationToken = "XDG_ACTIVATION_TOKEN";

QString NewConnectionName() {
  static std::atomic<int> count = 0;
  return QStringLiteral("RunningProgram%1").arg(++count);
}

// Where windows need a leave to come forward, the toolkit looks for it here.
auto LendActivationToken(const QVariantMap& platformData) {
  const QByteArray token = platformData.value(QStringLiteral("activation-token")).toString().toUtf8();
  if (!token.isEmpty()) qputenv(kActivationToken, token);
  return qScopeGuard([token] {
    if (!token.isEmpty()) qunsetenv(kActivationToken);
  });
}

}  // namespace

TCRunningProgram::TCRunningProgram(const QString& busAddress)
    : connectionName(NewConnectionName()),
      asked(std::async(std::launch::async, [this, busAddress] { return Register(busAddress); })) {}

TCRunningProgram::~TCRunningProgram() {
  if (asked.valid()) asked.wait();
  QDBusConnection::disconnectFromBus(connectionName);
}

TCRunningProgram::TCStanding TCRunningProgram::Register(const QString& busAddress) {
  QDBusConnection bus = busAddress.isEmpty()
                            ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName)
                            : QDBusConnection::connectToBus(busAddress, connectionName);
  if (!bus.isConnected()) return TCStanding::Alone;
  // Before the name: whoever finds it may call at once.
  bus.registerObject(kObjectPath, this, QDBusConnection::ExportScriptableSlots);
  return TakeName();
}

TCRunningProgram::TCStanding TCRunningProgram::TakeName() const {
  QDBusMessage request = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
  request << kBusName << kDoNotQueue;
  const QDBusMessage reply = QDBusConnection(connectionName).call(request, QDBus::Block, kBusPatience);
  if (reply.type() != QDBusMessage::ReplyMessage) return TCStanding::Alone;
  switch (reply.arguments().value(0).toUInt()) {
    case kPrimaryOwner:
      return TCStanding::First;
    case kExists:
      return TCStanding::Second;
    default:
      return TCStanding::Alone;
  }
}

TCRunningProgram::TCStanding TCRunningProgram::Standing() {
  if (!standing) standing = asked.get();
  return *standing;
}

TCRunningProgram::TCHandOver TCRunningProgram::HandOver(const std::optional<std::string>& nativeName,
                                                        const QVariantMap& platformData,
                                                        std::chrono::milliseconds patience) {
  QDBusMessage wish = QDBusMessage::createMethodCall(
      kBusName, kObjectPath, kInterface, nativeName ? QStringLiteral("Open") : QStringLiteral("Activate"));
  if (nativeName) wish << QStringList(FileAddress(*nativeName));
  wish << platformData;
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (true) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left <= left.zero()) return TCHandOver::NoAnswer;
    const QDBusMessage reply =
        QDBusConnection(connectionName).call(wish, QDBus::Block, static_cast<int>(left.count()));
    if (reply.type() == QDBusMessage::ReplyMessage) return TCHandOver::Done;
    if (reply.errorName() == kDialogOpen) return TCHandOver::DialogOpen;
    if (reply.errorName() == QDBusError::errorString(QDBusError::InvalidArgs)) return TCHandOver::NoAnswer;
    // A program that ends may refuse the call a moment before its name is free, and another start that waits
    // for it may be the one that gets the name.
    standing = TakeName();
    if (standing == TCStanding::First) return TCHandOver::Gone;
    std::this_thread::sleep_for(kBeforeAskingAgain);
  }
}

QVariantMap TCRunningProgram::PlatformData() {
  QVariantMap data;
  const auto add = [&data](const QString& key, const char* variable) {
    if (qEnvironmentVariableIsSet(variable)) data.insert(key, qEnvironmentVariable(variable));
  };
  add(QStringLiteral("activation-token"), kActivationToken);
  add(QStringLiteral("desktop-startup-id"), "DESKTOP_STARTUP_ID");
  return data;
}

void TCRunningProgram::Activate(const QVariantMap& platformData) {
  const auto lent = LendActivationToken(platformData);
  if (door != nullptr) door->ComeForward();
}

void TCRunningProgram::Open(const QStringList& uris, const QVariantMap& platformData) {
  const auto lent = LendActivationToken(platformData);
  // There is one document, so the first file is it.
  const std::string name = uris.isEmpty() ? std::string() : FileNameOf(uris.constFirst());
  if (name.empty()) {
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no file of this machine is named"));
  } else if (door == nullptr || !door->OpenFromOutside(name)) {
    sendErrorReply(kDialogOpen, QStringLiteral("a dialog is open"));
  }
}

void TCRunningProgram::ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                                      const QVariantMap& /*platformData*/) {
  // The desktop entry offers none.
  sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no action ") + action);
}

}  // namespace brevant

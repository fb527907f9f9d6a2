#include "platform/start_watch.h"

#include <QString>
#include <utility>
#include <vector>

#include "run/failures.h"

namespace tarvis {
namespace {

struct Message {
  QtMsgType Type;
  QString Category;
  QString Text;
};

Desktop* watching = nullptr;
std::vector<Message> messages;  // warnings of the start until now

bool IsUnset(const char* variable) {
  return qEnvironmentVariableIsEmpty(variable);
}

// The first warning names the cause; the others follow from it.
std::string Cause(const QString& lastMessage) {
  std::string cause =
      (messages.empty() ? lastMessage.section(u'\n', 0, 0) : messages.front().Text).trimmed().toStdString();
  if (IsUnset("QT_QPA_PLATFORM") && IsUnset("DISPLAY") && IsUnset("WAYLAND_DISPLAY"))
    cause += " (DISPLAY is not set)";
  return cause;
}

void Listen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) {
    messages.push_back({type, QString::fromUtf8(context.category), text});
    return;
  }
  watching->Diagnose("no window can be shown: " + Cause(text));
  watching->EndProcess(ExitAfterRunTimeFailure);
}

}  // namespace

StartWatch::StartWatch(Desktop& desktop) : before_(qInstallMessageHandler(Listen)) {
  watching = &desktop;
}

StartWatch::~StartWatch() {
  qInstallMessageHandler(before_);
  for (const Message& message : std::exchange(messages, {})) {
    const QByteArray category = message.Category.toUtf8();
    qt_message_output(message.Type, QMessageLogContext(nullptr, 0, nullptr, category.constData()),
                      message.Text);
  }
  watching = nullptr;
}

}  // namespace tarvis

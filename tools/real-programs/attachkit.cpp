// SPDX-License-Identifier: MIT
//
// Goes into a program with LD_PRELOAD. Attaches a kit to each main window before it is shown, if
// RY_KIT_SETTINGS names a file for the layouts. Answers commands on the socket RY_KIT_SOCKET.

#include "visiblewidgets.h"
#include "windowreport.h"

#include <RyToolBarKit>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMainWindow>
#include <QPointer>
#include <QSet>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

class Attachment : public QObject
{
public:
    Attachment();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void listenOn(const QByteArray &path);
    void answerClient();
    QByteArray answer(const QByteArray &command);
    void attachTo(QMainWindow *window);
    QJsonArray reports();
    void customize();

    int m_socket = -1;
    QSettings *m_settings = nullptr; // null without a kit
    QList<QPointer<QMainWindow>> m_windows;
    QHash<const QAction *, int> m_triggered;
    QStringList m_refused;
};

Attachment::Attachment()
{
    const QString settings = qEnvironmentVariable("RY_KIT_SETTINGS");
    if (!settings.isEmpty())
        m_settings = new QSettings(settings, QSettings::IniFormat, this);
    listenOn(qgetenv("RY_KIT_SOCKET"));
    // Not for programs that this one starts.
    for (const char *name : {"LD_PRELOAD", "RY_KIT_SETTINGS", "RY_KIT_SOCKET"})
        qunsetenv(name);
    qApp->installEventFilter(this);
}

bool Attachment::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Polish || event->type() == QEvent::Show) {
        QMainWindow *const window = qobject_cast<QMainWindow *>(watched);
        if (window && window->isWindow() && !m_windows.contains(window))
            attachTo(window);
    }
    return false;
}

void Attachment::attachTo(QMainWindow *window)
{
    m_windows.append(window);
    if (!m_settings)
        return;
    RyToolBarKit *const kit = new RyToolBarKit(window, false);
    const QString name = window->objectName().isEmpty()
        ? QLatin1String(window->metaObject()->className())
        : window->objectName();
    kit->setSettings(m_settings, "toolBars/" + name);
    connect(kit, &RyToolBarKit::layoutRefused, this,
            [this](const QString &reason) { m_refused.append(reason); });
}

void Attachment::listenOn(const QByteArray &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    m_socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0
        || listen(m_socket, 8) != 0)
        return;
    QSocketNotifier *const notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { answerClient(); });
}

void Attachment::answerClient()
{
    const int client = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0)
        return;
    char command[100];
    const ssize_t size = read(client, command, sizeof command);
    const QByteArray bytes = answer(QByteArray(command, size < 0 ? 0 : int(size)).trimmed());
    for (ssize_t sent = 0, part = 0; sent < bytes.size(); sent += part) {
        part = write(client, bytes.constData() + sent, size_t(bytes.size() - sent));
        if (part <= 0)
            break;
    }
    close(client);
}

QByteArray Attachment::answer(const QByteArray &command)
{
    QJsonObject result;
    if (command == "report")
        result["windows"] = reports();
    else if (command == "widgets")
        result["widgets"] = visibleWidgets();
    else if (command == "customize")
        QTimer::singleShot(0, this, [this] { customize(); });
    else
        result["error"] = "unknown command";
    return QJsonDocument(result).toJson(QJsonDocument::Compact);
}

QJsonArray Attachment::reports()
{
    QJsonArray all;
    for (const QPointer<QMainWindow> &window : m_windows) {
        if (!window)
            continue;
        const WindowReport report(window);
        QJsonObject json = report.json();
        QJsonObject triggered;
        for (QAction *action : report.actions()) {
            if (!m_triggered.contains(action)) {
                m_triggered.insert(action, 0);
                connect(action, &QAction::triggered, this,
                        [this, action] { ++m_triggered[action]; });
                connect(action, &QObject::destroyed, this,
                        [this, action] { m_triggered.remove(action); });
            }
            if (m_triggered.value(action) > 0)
                triggered[action->text()] = m_triggered.value(action);
        }
        json["triggered"] = triggered;
        if (RyToolBarKit *const kit = window->findChild<RyToolBarKit *>()) {
            json["kit"] = QJsonObject{
                {"problems", QJsonArray::fromStringList(kit->problems())},
                {"layout", QJsonDocument::fromJson(kit->saveLayout()).object()["layout"]},
                {"isDefault", kit->isDefault()},
                {"refused", QJsonArray::fromStringList(m_refused)},
            };
        }
        all.append(json);
    }
    return all;
}

void Attachment::customize()
{
    for (const QPointer<QMainWindow> &window : m_windows) {
        RyToolBarKit *const kit = window ? window->findChild<RyToolBarKit *>() : nullptr;
        if (kit && window->isVisible()) {
            kit->customizeAction()->trigger();
            return;
        }
    }
}

// Programs that are not drawn with widgets have no window for a kit.
void attach()
{
    if (qobject_cast<QApplication *>(qApp) && !qEnvironmentVariableIsEmpty("RY_KIT_SOCKET"))
        new Attachment;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(attach)

// SPDX-License-Identifier: MIT

#include "layoutcheck.h"

#include "kitwindow.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QLayout>
#include <QTextStream>

namespace {

// A window that was never shown, because bytes must be safe before that, too.
struct LayoutHost
{
    LayoutHost()
        : kit(&window, false)
    {
        window.setObjectName("window");
        kit.setSettings(nullptr, QString());
        KitProgram::buildDefault(&window);
        kit.restoreNow();
        QObject::connect(&kit, &RyToolBarKit::layoutRefused, [this] { ++refusals; });
    }

    QString content() const;

    QMainWindow window;
    RyToolBarKit kit;
    int refusals = 0;
};

// All toolbars in the order of the window, with everything that a layout changes.
QString LayoutHost::content() const
{
    QString text;
    QTextStream stream(&text);
    const QLayout *const layout = window.layout();
    for (int i = 0; QLayoutItem *const item = layout->itemAt(i); ++i) {
        QToolBar *const toolBar = qobject_cast<QToolBar *>(item->widget());
        if (!toolBar)
            continue;
        stream << window.toolBarArea(toolBar) << window.toolBarBreak(toolBar)
               << toolBar->isFloating() << toolBar->testAttribute(Qt::WA_WState_ExplicitShowHide)
               << toolBar->iconSize().width() << ' ' << toolBar->toolButtonStyle()
               << toolBar->isMovable() << toolBar->objectName() << toolBar->windowTitle() << ':';
        const auto actions = toolBar->actions();
        for (const QAction *action : actions)
            stream << (action->isSeparator() ? QString("|") : action->objectName()) << ' ';
    }
    return text;
}

} // namespace

QByteArray valueOfInput(const QByteArray &input)
{
    if (!input.startsWith('='))
        return input;
    const QByteArray layout = QJsonDocument::fromJson(input.mid(1)).toJson(QJsonDocument::Compact);
    return "{\"format\":1,\"checksum\":\""
        + QCryptographicHash::hash(layout, QCryptographicHash::Sha1).toHex()
        + "\",\"layout\":" + layout + "}";
}

QString breachOf(const QByteArray &input)
{
    LayoutHost host;
    const QString before = host.content();
    const QByteArray value = valueOfInput(input);
    if (!host.kit.restoreLayout(value)) {
        if (host.refusals != 1)
            return "a refused value is not reported once";
        return host.content() == before ? QString() : "a refused value changes the toolbars";
    }
    if (host.refusals != 0)
        return "a value that is taken is reported as refused";
    const QString after = host.content();
    const QByteArray layout = host.kit.saveLayout();

    LayoutHost other;
    if (!other.kit.restoreLayout(layout))
        return "what was saved is refused";
    if (other.kit.saveLayout() != layout)
        return "what was saved is saved differently";
    if (other.content() != after)
        return "what was saved is restored differently: " + after + " and " + other.content();
    if (!host.kit.restoreLayout(QByteArray()) || !host.kit.isDefault())
        return "the default does not come back";
    return QString();
}

// SPDX-License-Identifier: MIT

#include "stablenames.h"

#include <QAction>
#include <QDockWidget>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMetaProperty>
#include <QToolBar>
#include <QWidgetAction>

namespace {

QString nameOfWidget(const QWidget *widget)
{
    const QString name = widget->objectName();
    return name.isEmpty()
        ? QLatin1String("widget:") + QLatin1String(widget->metaObject()->className())
        : name;
}

// The name of the menu or widget that an action belongs to.
QString nameOfOwner(const QAction *action)
{
    const QMenu *const menu = action->menu();
    if (menu && menu->menuAction() == action)
        return menu->objectName();
    const QWidgetAction *const widgetAction = qobject_cast<const QWidgetAction *>(action);
    if (widgetAction && widgetAction->defaultWidget())
        return nameOfWidget(widgetAction->defaultWidget());

    const QDockWidget *const dock = qobject_cast<const QDockWidget *>(action->parent());
    const QToolBar *const toolBar = qobject_cast<const QToolBar *>(action->parent());
    if ((dock && dock->toggleViewAction() == action)
        || (toolBar && toolBar->toggleViewAction() == action)) {
        const QString name = action->parent()->objectName();
        return name.isEmpty() ? name : name + QLatin1String("/toggleViewAction");
    }
    return QString();
}

QString textName(const QString &text)
{
    return QLatin1String("text:") + text;
}

QString sentence(const QObject *object, const QString &text, const QString &what)
{
    return QStringLiteral("%1 \"%2\" %3")
        .arg(QLatin1String(object->metaObject()->className()), text, what);
}

} // namespace

StableNames::StableNames(const QMainWindow *window)
    : m_window(window)
{
}

void StableNames::add(const QAction *action)
{
    addUnique(action, nameFor(action), plainText(action->text()));
}

void StableNames::add(const QToolBar *toolBar)
{
    const QString name = toolBar->objectName();
    addUnique(toolBar, name.isEmpty() ? memberOf(toolBar) : name,
              plainText(toolBar->windowTitle()));
}

void StableNames::add(const QObject *object, const QString &name)
{
    m_names.insert(object, name);
    m_objects.insert(name, const_cast<QObject *>(object));
}

// Without a name, it gets one that is made of its text.
void StableNames::addUnique(const QObject *object, const QString &name, const QString &text)
{
    QString unique = name;
    QString problem;
    if (name.isEmpty()) {
        unique = textName(text);
        problem = QStringLiteral("has no name that is the same in every language: give it an "
                                 "objectName");
    } else if (m_objects.contains(name)) {
        problem = QStringLiteral("has the name \"%1\", but something else has it too: give each an "
                                 "objectName of its own")
                      .arg(name);
    }
    if (!problem.isEmpty())
        m_problems.insert(object, sentence(object, text, problem));
    while (m_objects.contains(unique))
        unique += QLatin1String("/text:") + text;
    add(object, unique);
}

QString StableNames::wantedName(const QAction *action) const
{
    const QString name = nameFor(action);
    return name.isEmpty() ? textName(plainText(action->text())) : name;
}

void StableNames::remove(const QObject *object)
{
    m_problems.remove(object);
    m_objects.remove(m_names.take(object));
}

QString StableNames::nameOf(const QObject *object) const
{
    return m_names.value(object);
}

QObject *StableNames::object(const QString &name) const
{
    return m_objects.value(name);
}

QStringList StableNames::problems() const
{
    QStringList problems = m_problems.values();
    problems.sort();
    return problems;
}

QString StableNames::plainText(const QString &text)
{
    if (!text.contains(QLatin1Char('&')))
        return text.trimmed();
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        // In some languages a mnemonic follows the text, as in "Text (&T)".
        if (text.mid(i, 2) == QLatin1String("(&") && text.mid(i + 3, 1) == QLatin1String(")")) {
            i += 3;
            continue;
        }
        if (text.at(i) == QLatin1Char('&') && ++i == text.size())
            break;
        plain.append(text.at(i));
    }
    return plain.trimmed();
}

QString StableNames::inWords(const QString &name)
{
    QString words;
    bool begins = true;
    for (const QChar letter : name) {
        const bool isLetter = letter.isLetterOrNumber();
        if (isLetter && (begins || (letter.isUpper() && words.at(words.size() - 1).isLower()))) {
            words += words.isEmpty() ? QString() : QStringLiteral(" ");
            words += letter.toUpper();
        } else if (isLetter) {
            words += letter;
        }
        begins = !isLetter;
    }
    return words;
}

bool StableNames::hasName(const QAction *action) const
{
    return !nameFor(action).isEmpty();
}

QString StableNames::nameFor(const QAction *action) const
{
    QString name = action->objectName();
    if (name.isEmpty())
        name = nameOfOwner(action);
    if (name.isEmpty())
        name = memberOf(action);
    if (name.isEmpty() && !action->icon().name().isEmpty())
        name = QLatin1String("icon:") + action->icon().name();
    return name;
}

// The property of the window that holds an object.
QString StableNames::memberOf(const QObject *object) const
{
    const auto holds = [object](const QVariant &value) {
        return value.value<QObject *>() == object;
    };
    const QMetaObject *const meta = m_window->metaObject();
    for (int i = QMainWindow::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        // Reading others may do something in the program.
        const QMetaProperty property = meta->property(i);
        if (QByteArray(property.typeName()).endsWith('*') && holds(property.read(m_window)))
            return QLatin1String(property.name());
    }
    const auto dynamicNames = m_window->dynamicPropertyNames();
    for (const QByteArray &name : dynamicNames) {
        if (holds(m_window->property(name.constData())))
            return QString::fromUtf8(name);
    }
    return QString();
}

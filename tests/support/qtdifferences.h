// SPDX-License-Identifier: MIT

#ifndef QTDIFFERENCES_H
#define QTDIFFERENCES_H

#include <QDropEvent>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QMouseEvent>

/*
 * Everything in which Qt 5 and Qt 6 differ for the tests is in this file.
 */
namespace QtDifferences {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

const bool DialogsHaveContextHelp = true;

inline QPoint position(const QDropEvent *event)
{
    return event->pos();
}

template <typename PointerEvent> QPoint globalPosition(const PointerEvent *event)
{
    return event->globalPos();
}

inline QString path(QLibraryInfo::LibraryLocation location)
{
    return QLibraryInfo::location(location);
}

inline void forgetLayoutDirection()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

// Before the application is constructed.
inline void useSharpImages()
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

const bool librariesMayStay = false;

#else

const bool DialogsHaveContextHelp = false;

inline QPoint position(const QDropEvent *event)
{
    return event->position().toPoint();
}

template <typename PointerEvent> QPoint globalPosition(const PointerEvent *event)
{
    return event->globalPosition().toPoint();
}

inline QString path(QLibraryInfo::LibraryPath location)
{
    return QLibraryInfo::path(location);
}

// Takes no direction from its translations while the program has chosen one.
inline void forgetLayoutDirection()
{
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

inline void useSharpImages()
{
}

// Registers list types with variables that GCC makes unique in the process. The dynamic linker does
// not unload a library with such a variable.
const bool librariesMayStay = true;

#endif

} // namespace QtDifferences

#endif // QTDIFFERENCES_H

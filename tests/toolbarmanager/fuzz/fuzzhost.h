// SPDX-License-Identifier: MIT

#ifndef FUZZHOST_H
#define FUZZHOST_H

#include "rytoolbarmanager.h"

#include <QMainWindow>
#include <QPointer>

/*
 * A host application in small, in one of several shapes, into which any bytes are restored.
 *
 * Default toolbars get their names in the order of their addresses, and so do custom ones, so that
 * a shape is nearly the same to the manager whatever the allocator does.
 */
class FuzzHost
{
public:
    enum Shape {
        Usual,
        Nameless,
        Doubles,
        NoMainWindow,
        ManyCustomToolBars,
        SharedSeparators,
        NumbersWithGaps,
        NoToolBars,
        ShapeCount
    };

    explicit FuzzHost(int shape);

    // Gives the toolbars of the shape their names and contents back and deletes all others, which
    // is faster than a new host. False if that takes a new host.
    bool reset();

    QMainWindow window;
    RyToolBarManager manager;
    // In the window, but the manager does not know it.
    QToolBar *const unmanaged;
    // Every separator that is on a default toolbar when it is registered.
    QList<QPointer<QAction>> separators;
    int signalsEmitted = 0;

private:
    struct ToolBar
    {
        QString objectName;
        QString title;
        QList<QAction *> content;
    };

    QAction *action(const QString &objectName, const QString &text);
    QAction *registered(const QString &objectName);
    QAction *registered(const QString &objectName, const QString &text);
    void fill(QToolBar *toolBar, const char *content);
    QList<QAction *> list(const char *content);
    void addDefaultToolBars(const QStringList &names, const QStringList &titles,
                            const QList<const char *> &contents);
    void addCustomToolBars(const QStringList &names, const QStringList &titles,
                           const QList<const char *> &contents);

    void makeUsual();
    void makeNameless();
    void makeDoubles();
    void makeManyCustomToolBars();
    void makeSharedSeparators();
    void makeNumbersWithGaps();
    void rememberToolBars();

    const int m_shape;
    // As they are in the beginning.
    QMap<QToolBar *, ToolBar> m_toolBars;
};

#endif // FUZZHOST_H

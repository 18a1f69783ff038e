// SPDX-License-Identifier: MIT

#include "customizing.h"

#include "nextmodal.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>
#include <QtTest>

void customize(QAction *action, const DialogSteps &steps)
{
    const NextModal next([&steps](QWidget *modal) {
        RyCustomizedDialog *const dialog = qobject_cast<RyCustomizedDialog *>(modal);
        QVERIFY(dialog);
        steps(EditorViews(dialog), dialog);
    });
    action->trigger();
    QTRY_VERIFY(next.wasShown()); // the kit does not wait for the dialog
}

QToolBar *toolBarTitled(const QMainWindow &window, const QString &title)
{
    const auto toolBars = window.findChildren<QToolBar *>();
    for (QToolBar *toolBar : toolBars) {
        if (toolBar->windowTitle() == title)
            return toolBar;
    }
    return nullptr;
}

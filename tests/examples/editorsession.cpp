// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "texts.h"

#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QtTest>

EditorSession::EditorSession(const QString &settingsFile)
    : settings(settingsFile, QSettings::IniFormat)
    , window(&settings)
    , editor(window.findChild<EditorView *>())
{
}

void EditorSession::start()
{
    window.show();
}

QString EditorSession::notice() const
{
    return child<QLabel>("status_notice")->text();
}

QAction *EditorSession::action(const char *name) const
{
    return child<QAction>(name);
}

QToolBar *EditorSession::toolBar(const QString &title) const
{
    return toolBarTitled(window, title);
}

QStringList EditorSession::toolBarTitles() const
{
    return toolBarTitlesIn(window);
}

void EditorSession::customize(const DialogSteps &steps)
{
    ::customize(action("customizeToolBars"), steps);
}

void EditorSession::addToolBar(const QString &title, const QStringList &actionTexts)
{
    customize([&](const EditorViews &views, RyCustomizedDialog *dialog) {
        views.click(views.newButton);
        views.typeName(title);
        for (const QString &text : actionTexts)
            views.doubleClick(views.actionTree, text);
        QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    });
}

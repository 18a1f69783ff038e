// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "editorviews.h"
#include "texts.h"

#include <RyCustomizedDialog>

#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QtTest>

EditorSession::EditorSession(const QString &settingsFile)
    : settings(settingsFile, QSettings::IniFormat)
    , window(&settings)
    , editor(window.findChild<EditorView *>())
{
    QObject::connect(&m_watch, &QTimer::timeout, &NextModal::refuseUnexpected);
    m_watch.start(0);
}

void EditorSession::start()
{
    window.restoreLayout();
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
    const auto all = window.findChildren<QToolBar *>();
    for (QToolBar *toolBar : all) {
        if (toolBar->windowTitle() == title)
            return toolBar;
    }
    return nullptr;
}

QStringList EditorSession::toolBarTitles() const
{
    return toolBarTitlesIn(window);
}

void EditorSession::customize(
    const std::function<void(const EditorViews &, RyCustomizedDialog *)> &steps)
{
    const NextModal dialog([&steps](QWidget *modal) {
        RyCustomizedDialog *const opened = qobject_cast<RyCustomizedDialog *>(modal);
        QVERIFY(opened);
        steps(EditorViews(opened), opened);
    });
    action("tools_customize_toolbars")->trigger();
    QVERIFY(dialog.wasOpened());
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

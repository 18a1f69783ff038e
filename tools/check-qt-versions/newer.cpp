// SPDX-License-Identifier: MIT

/*
 * Wrong on purpose and built by nobody: tools/check-qt-versions.sh shows with it that it finds what
 * Qt 5.6 does not have. Each comment names what has to be found in its line.
 */

#include <QAction>
#include <QDataStream>
#include <QListWidget>
#include <QSet>
#include <QToolBar>

// clang-format off
void newer(QToolBar *toolBar, QListWidget *list, QDataStream &stream)
{
    const QList<QAction *> actions = toolBar->actions();
    for (QAction *action : qAsConst(actions)) // qAsConst(T &)
        action->setText(action->text().chopped(1)); // QString::chopped(int)
    const QSet<QAction *> set(actions.begin(), actions.end()); // QSet::QSet(InputIterator
    toolBar->screen(); // QWidget::screen() const
    list->isPersistentEditorOpen(list->item(set.size())); // QListWidget::isPersistentEditorOpen(
    stream.setVersion(QDataStream::Qt_5_12); // QDataStream::Version::Qt_5_12
    list->setWindowFlag(Qt::Tool); // QWidget::setWindowFlag(
    const QString name = list->objectName();
    const QStringList parts = name.split(QLatin1Char(','), Qt::SkipEmptyParts); // SkipEmptyParts
    Q_UNUSED(QStringView(parts.first())) // QStringView
    QObject::connect(list, SIGNAL(brandNew(int)), list, SLOT(clear())); // SIGNAL(brandNew(int))
}
// clang-format on

// SPDX-License-Identifier: MIT

#include "translateddialog.h"

#include "nextmodal.h"
#include "texts.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QtTest>

namespace {

const QString first = "?1";
const QString second = "?2";

QString line(const QString &text, const QString &needs)
{
    return QString("\"%1\" needs %2").arg(text, needs);
}

QString sizes(const QSize &wanted, const QSize &given)
{
    return QString("%1x%2 in %3x%4")
        .arg(wanted.width())
        .arg(wanted.height())
        .arg(given.width())
        .arg(given.height());
}

// A label or a button.
template <typename Widget> void appendCutOff(QStringList &found, const QWidget *dialog)
{
    const auto widgets = dialog->findChildren<Widget *>();
    for (const Widget *widget : widgets) {
        if (!widget->isVisible() || widget->text().isEmpty())
            continue;
        const QSize wanted = widget->sizeHint();
        if (wanted.boundedTo(widget->size()) != wanted)
            found << line(widget->text(), sizes(wanted, widget->size()));
        const QRect place(widget->mapTo(dialog, QPoint()), widget->size());
        if (!dialog->rect().contains(place))
            found << line(widget->text(), "more than the dialog");
    }
}

void appendCutOff(QStringList &found, const QTabBar *bar)
{
    if (bar->sizeHint().width() > bar->width())
        found << line(bar->tabText(0), sizes(bar->sizeHint(), bar->size()));
    for (int i = 0; i < bar->count(); ++i) {
        const int wanted = bar->fontMetrics().horizontalAdvance(bar->tabText(i));
        if (wanted > bar->tabRect(i).width() || !bar->rect().contains(bar->tabRect(i)))
            found << line(bar->tabText(i), "a wider tab");
    }
}

void appendCutOff(QStringList &found, const QAbstractItemView *view)
{
    const int wanted = view->sizeHintForColumn(0);
    if (wanted > view->viewport()->width())
        found << line(view->objectName(), QString("a width of %1").arg(wanted));
}

void appendCutOff(QStringList &found, const QTreeView *view)
{
    const int wanted = view->header()->sectionSizeHint(0);
    if (view->header()->isVisible() && wanted > view->header()->sectionSize(0))
        found << line(view->objectName(), QString("a header of %1").arg(wanted));
}

void appendTexts(QStringList &texts, const QWidget *widget)
{
    texts << widget->windowTitle();
    if (const auto *const label = qobject_cast<const QLabel *>(widget))
        texts << label->text();
    if (const auto *const button = qobject_cast<const QToolButton *>(widget))
        texts << button->text() << button->toolTip();
    if (const auto *const list = qobject_cast<const QListWidget *>(widget))
        texts << rowsOf(list);
    if (const auto *const tree = qobject_cast<const QTreeWidget *>(widget))
        texts << tree->headerItem()->text(0) << itemsOf(tree);
    if (const auto *const bar = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < bar->count(); ++i)
            texts << bar->tabText(i);
    }
}

} // namespace

TranslatedDialog::TranslatedDialog()
    : dialog({&manager, nullptr}, &window)
    , editor(&dialog)
    , tabs(dialog.findChild<QTabWidget *>())
{
    registered(second, first);
    defaultToolBar(first, {second, "|"}, first);
    dialog.show();
    editor.click(editor.toolBarList, first);
}

void TranslatedDialog::createToolBar()
{
    editor.click(editor.newButton);
    QVERIFY(editor.renameEditor());
    QTest::keyClick(editor.renameEditor(), Qt::Key_Return);
    QVERIFY(QTest::qWaitFor([this] { return !editor.renameEditor(); }));
}

QStringList TranslatedDialog::help()
{
    QStringList texts;
    const NextModal box([&texts](QWidget *modal) {
        QMessageBox *const message = qobject_cast<QMessageBox *>(modal);
        QVERIFY(message);
        texts << message->windowTitle() << message->text();
        message->close();
    });
    QTest::mouseClick(dialog.helpButton(), Qt::LeftButton);
    return texts;
}

QStringList TranslatedDialog::texts() const
{
    QStringList texts;
    appendTexts(texts, &dialog);
    const auto widgets = dialog.findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        appendTexts(texts, widget);
    texts.removeAll(QString());
    const QStringList ofHost{first, second, "  " + second};
    for (const QString &text : ofHost)
        texts.removeAll(text);
    return texts;
}

QStringList TranslatedDialog::cutOff(const QDialog *dialog)
{
    QStringList found;
    appendCutOff<QLabel>(found, dialog);
    appendCutOff<QAbstractButton>(found, dialog);
    const QTabWidget *const tabs = dialog->findChild<QTabWidget *>();
    if (tabs->tabBar()->isVisible())
        appendCutOff(found, tabs->tabBar());
    const QWidget *const page = tabs->currentWidget();
    const auto views = page->findChildren<QAbstractItemView *>();
    for (const QAbstractItemView *view : views)
        appendCutOff(found, view);
    appendCutOff(found, page->findChild<QTreeView *>());
    return found;
}

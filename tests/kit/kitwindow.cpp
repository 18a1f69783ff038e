// SPDX-License-Identifier: MIT

#include "kitwindow.h"

#include <QApplication>
#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

namespace {

QString shown(const QAction *action)
{
    if (action->isSeparator())
        return "|";
    return action->objectName().isEmpty() ? action->text() : action->objectName();
}

} // namespace

QAction *addAction(QWidget *widget, const QString &name)
{
    QAction *const action = new QAction(name.left(1).toUpper() + name.mid(1), widget->window());
    action->setObjectName(name);
    widget->addAction(action);
    return action;
}

void letTheKitFollow()
{
    for (int i = 0; i < 2; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

KitProgram::KitProgram()
    : settings(new QSettings(folder.filePath("settings.ini"), QSettings::IniFormat))
{
}

void KitProgram::shareSettings(const KitProgram &first)
{
    settings.reset(new QSettings(first.settings->fileName(), QSettings::IniFormat));
}

KitProgram::~KitProgram()
{
    end();
}

void KitProgram::buildDefault(QMainWindow *window)
{
    QMenu *const file = window->menuBar()->addMenu("&File");
    QMenu *const edit = window->menuBar()->addMenu("&Edit");
    for (const char *name : {"new", "open", "save"})
        addAction(file, name);
    for (const char *name : {"cut", "copy", "paste"})
        addAction(edit, name);
    QMenu *const special = edit->addMenu("&Special");
    special->setObjectName("special");
    addAction(special, "upper");
    QToolBar *const fileBar = window->addToolBar("File");
    fileBar->setObjectName("file");
    fileBar->addActions(file->actions());
    QToolBar *const editBar = window->addToolBar("Edit");
    editBar->setObjectName("edit");
    editBar->addAction(edit->actions().at(0));
    editBar->addSeparator();
    editBar->addAction(edit->actions().at(1));
}

void KitProgram::start(const Build &build)
{
    end();
    m_window.reset(makeWindow());
    m_window->setObjectName("main");
    m_kit = new RyToolBarKit(m_window.get(), false);
    m_kit->setSettings(settings.get(), key);
    QObject::connect(m_kit, &RyToolBarKit::layoutRefused,
                     [this](const QString &reason) { refusals << reason; });
    QObject::connect(m_kit, &RyToolBarKit::layoutChanged, [this] { ++layoutChanges; });
    QObject::connect(m_kit, &RyToolBarKit::customized, [this] { ++customizations; });
    build(m_window.get());
    m_window->show();
}

void KitProgram::end()
{
    if (m_window)
        m_window->close();
    m_window.reset();
    m_kit = nullptr;
}

QAction *KitProgram::action(const QString &name) const
{
    return m_window->findChild<QAction *>(name);
}

QToolBar *KitProgram::toolBar(const QString &name) const
{
    return m_window->findChild<QToolBar *>(name);
}

QString KitProgram::content(const QString &name) const
{
    QStringList texts;
    const auto actions = toolBar(name)->actions();
    for (const QAction *action : actions)
        texts << shown(action);
    return texts.join(" ");
}

QStringList KitProgram::contents() const
{
    QStringList all;
    const auto toolBars = m_window->findChildren<QToolBar *>();
    for (const QToolBar *toolBar : toolBars)
        all << toolBar->objectName() + ": " + content(toolBar->objectName());
    all.sort();
    return all;
}

QStringList KitProgram::places() const
{
    const QMap<int, QString> areas = {{Qt::LeftToolBarArea, "left"},
                                      {Qt::RightToolBarArea, "right"},
                                      {Qt::TopToolBarArea, "top"},
                                      {Qt::BottomToolBarArea, "bottom"}};
    QMap<QString, QString> lines;
    const QLayout *const layout = m_window->layout();
    for (int i = 0; QLayoutItem *const item = layout->itemAt(i); ++i) {
        QToolBar *const toolBar = qobject_cast<QToolBar *>(item->widget());
        if (!toolBar)
            continue;
        QString &text = lines[areas.value(m_window->toolBarArea(toolBar))];
        if (!text.isEmpty())
            text += m_window->toolBarBreak(toolBar) ? " / " : ", ";
        text += toolBar->objectName();
    }
    QStringList all;
    for (auto it = lines.cbegin(); it != lines.cend(); ++it)
        all << it.key() + ": " + it.value();
    return all;
}

QList<QAction *> KitProgram::actionsOf(const QString &content) const
{
    QList<QAction *> actions;
    const QStringList names = content.split(" ");
    for (const QString &name : names) {
        if (!name.isEmpty())
            actions << (name == "|" ? nullptr : action(name));
    }
    return actions;
}

RyCustomizedDialog *KitProgram::openDialog()
{
    m_kit->customizeAction()->trigger();
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        RyCustomizedDialog *const dialog = qobject_cast<RyCustomizedDialog *>(widget);
        if (dialog && dialog->parentWidget() == m_window.get() && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

// The page writes what it shows when OK is pressed, so the change comes after that, but before the
// kit looks.
void KitProgram::apply(const std::function<void(RyToolBarManager *)> &change)
{
    RyCustomizedDialog *const dialog = openDialog();
    QObject::connect(dialog, &QDialog::accepted, [this, change] { change(m_kit->manager()); });
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    letTheKitFollow();
}

void KitProgram::edit(const QString &name, const QString &content)
{
    apply(
        [=](RyToolBarManager *manager) { manager->setToolBar(toolBar(name), actionsOf(content)); });
}

QString KitProgram::create(const QString &title, const QString &content)
{
    QString name;
    apply([&](RyToolBarManager *manager) {
        QToolBar *const toolBar = manager->createToolBar(title);
        manager->setToolBar(toolBar, actionsOf(content));
        name = toolBar->objectName();
    });
    return name;
}

void KitProgram::remove(const QString &name)
{
    apply([=](RyToolBarManager *manager) { manager->deleteToolBar(toolBar(name)); });
}

void KitProgram::restoreDefaults()
{
    RyCustomizedDialog *const dialog = openDialog();
    QTest::mouseClick(dialog->RestoreDefaultButton(), Qt::LeftButton);
    if (QMessageBox *const question = dialog->findChild<QMessageBox *>())
        QTest::mouseClick(question->defaultButton() ? question->defaultButton()
                                                    : question->button(QMessageBox::Ok),
                          Qt::LeftButton);
    QTest::mouseClick(dialog->okButton(), Qt::LeftButton);
    letTheKitFollow();
}

QString KitProgram::stored() const
{
    return settings->value(key).toString();
}

void KitProgram::store(const QString &value)
{
    settings->setValue(key, value);
}

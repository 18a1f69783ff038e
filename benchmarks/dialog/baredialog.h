// SPDX-License-Identifier: MIT

#ifndef BAREDIALOG_H
#define BAREDIALOG_H

#include "scene.h"

#include "ui_cribbonpage.h"
#include "ui_ctoolbarpage.h"
#include "ui_customizeddialog.h"

#include <QDialog>

/*
 * One toolbar, as the bare dialog shows it.
 */
struct BareToolBar
{
    QString title;
    bool isDefault;
    QList<QAction *> content;
};

/*
 * The dialog as a host would write it: the same forms, filled in bulk before it is shown. It keeps
 * only the data that the measured buttons need: the action of each tree item in the item, and the
 * content of each toolbar by the number in its row.
 */
class BareDialog : public QDialog
{
    Q_OBJECT

public:
    BareDialog(const QList<Scene::Category> &categories, const QList<BareToolBar> &toolBars,
               QWidget *parent);

private Q_SLOTS:
    void showToolBar(QListWidgetItem *row);
    void add();
    void remove();
    void updateButtons();

private:
    void setUp();
    void setIcons();
    void makeConnections();
    void fillActionTree(const QList<Scene::Category> &categories);
    void fillToolBarList();

    Ui::CustomizedDialog m_form;
    Ui::CToolBarPage m_page;
    Ui::CRibbonPage m_ribbon;
    QList<BareToolBar> m_toolBars;
    // The number of the toolbar whose content is shown, or -1.
    int m_current = -1;
};

#endif // BAREDIALOG_H

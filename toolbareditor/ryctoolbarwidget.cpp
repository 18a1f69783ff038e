// SPDX-License-Identifier: MIT

#include "ryctoolbarwidget.h"

#include "rytoolbarmanager.h"
#include "toolbaritem.h"
#include "ui_ctoolbarpage.h"

#include <QGuiApplication>
#include <QHideEvent>
#include <QIcon>
#include <QPixmap>
#include <QShowEvent>

namespace {

QString pathOf(const QString &image)
{
    return QStringLiteral(":/RyCustomizedDialog/images/%1.png").arg(image);
}

QIcon icon(const QString &name)
{
    QIcon result(pathOf(name));
    // Qt 6.4 prefers the image with the nearest scale, at 1.5 the small one, to an image that is
    // large enough. Between images of the same scale it looks at their sizes.
    if (qApp->devicePixelRatio() > 1.0) {
        QPixmap large(pathOf(name + QLatin1String("@2x")));
        large.setDevicePixelRatio(1.0);
        result.addPixmap(large);
    }
    return result;
}

} // namespace

RyCToolBarWidget::RyCToolBarWidget(QWidget *parent, RyAbstatcManager *manager,
                                   Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , ui(new Ui_CToolBarPage())
    , m_manager(static_cast<RyToolBarManager *>(manager))
    , m_currentActionItem(nullptr)
    , m_currentRecord(nullptr)
    , m_managerGuard(manager)
{
    ui->setupUi(this);
    m_separatorText = tr("< S E P A R A T O R >");
    ui->actionTree->setColumnCount(1);
    ui->actionTree->header()->hide();
    ui->upButton->setIcon(icon(QStringLiteral("up")));
    ui->downButton->setIcon(icon(QStringLiteral("down")));
    ui->leftButton->setIcon(icon(QStringLiteral("back")));
    ui->rightButton->setIcon(icon(QStringLiteral("forward")));
    ui->newButton->setIcon(icon(QStringLiteral("plus")));
    ui->removeButton->setIcon(icon(QStringLiteral("minus")));
    makeConnections();
}

RyCToolBarWidget::~RyCToolBarWidget()
{
    // Still there if the editor is destroyed while it is shown.
    qDeleteAll(m_ownedRecords);
    delete ui;
}

void RyCToolBarWidget::makeConnections()
{
    connect(ui->newButton, SIGNAL(clicked()), this, SLOT(newClicked()));
    connect(ui->removeButton, SIGNAL(clicked()), this, SLOT(removeClicked()));
    connect(ui->renameButton, SIGNAL(clicked()), this, SLOT(renameClicked()));
    connect(ui->upButton, SIGNAL(clicked()), this, SLOT(upClicked()));
    connect(ui->downButton, SIGNAL(clicked()), this, SLOT(downClicked()));
    connect(ui->leftButton, SIGNAL(clicked()), this, SLOT(leftClicked()));
    connect(ui->rightButton, SIGNAL(clicked()), this, SLOT(rightClicked()));
    // Signatures stay normalized, which formatting would undo.
    // clang-format off
    connect(ui->actionTree, SIGNAL(currentItemChanged(QTreeWidgetItem*,QTreeWidgetItem*)),
            this, SLOT(currentActionChanged(QTreeWidgetItem*)));
    connect(ui->toolBarList, SIGNAL(currentItemChanged(QListWidgetItem*,QListWidgetItem*)),
            this, SLOT(currentToolBarChanged(QListWidgetItem*)));
    connect(ui->currentToolBarList, SIGNAL(currentItemChanged(QListWidgetItem*,QListWidgetItem*)),
            this, SLOT(currentToolBarActionChanged(QListWidgetItem*)));
    connect(ui->actionTree, SIGNAL(itemDoubleClicked(QTreeWidgetItem*,int)),
            this, SLOT(rightClicked()));
    connect(ui->currentToolBarList, SIGNAL(itemDoubleClicked(QListWidgetItem*)),
            this, SLOT(leftClicked()));
    connect(ui->toolBarList, SIGNAL(itemChanged(QListWidgetItem*)),
            this, SLOT(toolBarRenamed(QListWidgetItem*)));
    // clang-format on
    connect(ui->toolBarList, &QListWidget::currentRowChanged, this,
            &RyCToolBarWidget::showCurrentToolBar);
}

void RyCToolBarWidget::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        fillNew();
}

void RyCToolBarWidget::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        clearOld();
}

void RyCToolBarWidget::currentActionChanged(QTreeWidgetItem *current)
{
    m_currentActionItem = m_actionOfTreeItem.contains(current) ? current : nullptr;
    setButtons();
}

void RyCToolBarWidget::currentToolBarChanged(QListWidgetItem *current)
{
    m_currentRecord = m_recordOfListItem.value(current);
    ui->currentToolBarList->clear();
    m_entryOfAction.clear();
    m_actionOfEntry.clear();
    setButtons();
    if (!m_currentRecord)
        return;
    const auto actions = m_workingActions.value(m_currentRecord);
    for (QAction *action : actions)
        ui->currentToolBarList->addItem(createEntry(action));
    if (!actions.isEmpty())
        ui->currentToolBarList->setCurrentRow(0);
}

// A click on another row may end a renaming, which sorts the rows again. Qt 6 then reports the row
// that has come to the clicked one's place.
void RyCToolBarWidget::showCurrentToolBar(int reported)
{
    // While the last row is removed, none is reported, but the row is still current.
    QListWidgetItem *const current = reported < 0 ? nullptr : ui->toolBarList->currentItem();
    if (m_currentRecord != m_recordOfListItem.value(current))
        currentToolBarChanged(current);
}

void RyCToolBarWidget::currentToolBarActionChanged(QListWidgetItem *current)
{
    Q_UNUSED(current);
    setButtons();
}

bool RyCToolBarWidget::isDefaultToolBar(ToolBarItem *item) const
{
    QToolBar *const toolBar = item ? toolBarOf(item) : nullptr;
    return toolBar && m_managerGuard && m_manager->isDefaultToolBar(toolBar);
}

void RyCToolBarWidget::setButtons()
{
    const bool editable = m_managerGuard;
    // Without a current toolbar too, on purpose.
    const bool removable = editable && !isDefaultToolBar(m_currentRecord);
    const int row = ui->currentToolBarList->currentRow();
    const int last = ui->currentToolBarList->count() - 1;
    ui->newButton->setEnabled(editable);
    ui->removeButton->setEnabled(removable);
    ui->renameButton->setEnabled(removable);
    ui->upButton->setEnabled(editable && row > 0);
    ui->downButton->setEnabled(editable && row >= 0 && row < last);
    ui->leftButton->setEnabled(editable && row >= 0);
    ui->rightButton->setEnabled(editable && m_currentActionItem && m_currentRecord);
}

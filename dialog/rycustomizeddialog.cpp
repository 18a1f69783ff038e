// SPDX-License-Identifier: MIT

#include "rycustomizeddialog.h"

#include "ryabstatcmanager.h"
#include "rycribbonpage.h"
#include "ryctoolbarpage.h"
#include "ui_customizeddialog.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

// Taking the list by value is part of the binary contract.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
RyCustomizedDialog::RyCustomizedDialog(QList<RyAbstatcManager *> managers, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_CustomizedDialog())
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    ui->setupUi(this);
    createPages(managers);
    connectButtons();
}

RyCustomizedDialog::~RyCustomizedDialog()
{
    delete ui;
    qDeleteAll(m_optionPages);
}

QPushButton *RyCustomizedDialog::okButton() const
{
    return ui->m_dialogButtonBox->button(QDialogButtonBox::Ok);
}

QPushButton *RyCustomizedDialog::applyButton() const
{
    return ui->m_dialogButtonBox->button(QDialogButtonBox::Apply);
}

QPushButton *RyCustomizedDialog::RestoreDefaultButton() const
{
    return ui->m_dialogButtonBox->button(QDialogButtonBox::RestoreDefaults);
}

QPushButton *RyCustomizedDialog::helpButton() const
{
    return ui->m_dialogButtonBox->button(QDialogButtonBox::Help);
}

void RyCustomizedDialog::slotAccepted()
{
    const QPointer<QDialog> dialog(this);
    slotApply();
    if (dialog)
        closeOptionPages();
    if (dialog)
        QDialog::accept();
}

void RyCustomizedDialog::slotRejected()
{
    const QPointer<QDialog> dialog(this);
    closeOptionPages();
    if (dialog)
        QDialog::reject();
}

void RyCustomizedDialog::slotApply()
{
    callPages(&RyCusInterface::apply);
}

void RyCustomizedDialog::slotUiModeChanged(bool modified)
{
    // The inversion is meant: true disables Apply, false enables it.
    applyButton()->setEnabled(!modified);
}

void RyCustomizedDialog::slotHelp()
{
    // Both blanks before "doc!" are meant.
    QMessageBox::about(this, tr("help"), tr("KORVA help  doc!"));
}

void RyCustomizedDialog::slotRestorDefault()
{
    callPages(&RyCusInterface::RestorDefaults);
}

void RyCustomizedDialog::closeOptionPages()
{
    callPages(&RyCusInterface::finish);
}

// Calls that operation of one page after the other. It may call the host, which may delete the
// dialog, and the pages go with it.
void RyCustomizedDialog::callPages(void (RyCusInterface::*operation)())
{
    const QPointer<RyCustomizedDialog> dialog(this);
    const auto pages = m_optionPages;
    for (RyCusInterface *page : pages) {
        (page->*operation)();
        if (!dialog)
            return;
    }
}

void RyCustomizedDialog::createPages(const QList<RyAbstatcManager *> &managers)
{
    // Made in another order than they are listed, on purpose. The list's order is that of the tabs.
    RyCusInterface *const ribbonPage = new RyCRibbonPage(managers.at(1));
    RyCusInterface *const toolBarPage = new RyCToolBarPage(managers.at(0));
    m_optionPages << toolBarPage << ribbonPage;

    // Takes the form's placeholder out of the tabs; it stays a hidden child of the tab widget.
    ui->m_optionTabWidget->clear();
    const auto pages = m_optionPages;
    for (RyCusInterface *page : pages) {
        QWidget *const widget = page->createPage(this);
        ui->m_optionTabWidget->addTab(widget, page->name());
    }
}

// The button box's accepted() and helpRequested() stay unconnected on purpose: OK closes the
// dialog only through slotAccepted().
void RyCustomizedDialog::connectButtons()
{
    connect(ui->m_dialogButtonBox, SIGNAL(rejected()), this, SLOT(slotRejected()));
    connect(okButton(), SIGNAL(clicked()), this, SLOT(slotAccepted()));
    connect(applyButton(), SIGNAL(clicked()), this, SLOT(slotApply()));
    connect(helpButton(), SIGNAL(clicked()), this, SLOT(slotHelp()));
    connect(RestoreDefaultButton(), SIGNAL(clicked()), this, SLOT(slotRestorDefault()));
}

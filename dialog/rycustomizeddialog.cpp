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
    // Applying calls the host, which may delete the dialog.
    const QPointer<RyCustomizedDialog> guard(this);
    slotApply();
    if (!guard)
        return;
    closeOptionPages();
    QDialog::accept();
}

void RyCustomizedDialog::slotRejected()
{
    closeOptionPages();
    QDialog::reject();
}

void RyCustomizedDialog::slotApply()
{
    const QPointer<RyCustomizedDialog> guard(this);
    const auto pages = m_optionPages;
    for (RyCusInterface *page : pages) {
        page->apply();
        // The pages go with the dialog.
        if (!guard)
            return;
    }
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
    const auto pages = m_optionPages;
    for (RyCusInterface *page : pages)
        page->RestorDefaults();
}

void RyCustomizedDialog::closeOptionPages()
{
    const auto pages = m_optionPages;
    for (RyCusInterface *page : pages)
        page->finish();
}

void RyCustomizedDialog::createPages(const QList<RyAbstatcManager *> &managers)
{
    // Made in the other order than they are listed, on purpose; only the list's order counts later.
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

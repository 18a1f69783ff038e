// SPDX-License-Identifier: MIT

#include "profilechooser.h"

#include "dialogedits.h"
#include "rytoolbarkit.h"

#include <RyCustomizedDialog>
#include <RyToolBarManager>
#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

namespace {

const int MostNames = 20; // in a question
const int LongestName = 60;

// A file may have any number of names of any length.
QString listed(const QStringList &names)
{
    QStringList texts;
    const QStringList first = names.mid(0, MostNames);
    for (const QString &name : first)
        texts.append(name.size() > LongestName ? name.left(LongestName) + QChar(0x2026) : name);
    if (names.size() > MostNames)
        texts.append(QString(QChar(0x2026)));
    return texts.join(QStringLiteral(", "));
}

} // namespace

ProfileChooser::ProfileChooser(RyCustomizedDialog *dialog, const DialogEdits *edits,
                               RyToolBarKit *kit, const QString &current)
    : QWidget(dialog)
    , m_parts(dialog)
    , m_edits(edits)
    , m_kit(kit)
    , m_box(new QComboBox(this))
{
    setObjectName(QStringLiteral("profileChooser"));
    m_box->setObjectName(QStringLiteral("profileBox"));
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
    m_box->installEventFilter(this);
    QLabel *const label = new QLabel(tr("Profile:"), this);
    label->setObjectName(QStringLiteral("profileLabel"));
    label->setBuddy(m_box);
    QHBoxLayout *const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(label);
    line->addWidget(m_box, 1);
    m_saveButton = createButton("saveProfileButton", tr("Save As…"), SLOT(saveClicked()));
    m_removeButton = createButton("removeProfileButton", tr("Remove"), SLOT(removeClicked()));
    createButton("importLayoutButton", tr("Import…"), SLOT(importClicked()));
    createButton("exportLayoutButton", tr("Export…"), SLOT(exportClicked()));
    connect(m_box, SIGNAL(activated(int)), this, SLOT(choose(int)));
    // After the dialog's own connection.
    connect(dialog->applyButton(), SIGNAL(clicked()), this, SLOT(applied()));
    static_cast<QBoxLayout *>(dialog->layout())->insertWidget(0, this);
    showProfile(current);
}

QAbstractButton *ProfileChooser::createButton(const char *name, const QString &text,
                                              const char *slot)
{
    QPushButton *const button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false); // Return is for OK
    layout()->addWidget(button);
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}

bool ProfileChooser::eventFilter(QObject *watched, QEvent *event)
{
    // A wheel that turns above the box would switch from one profile to the next.
    return (watched == m_box && event->type() == QEvent::Wheel)
        || QWidget::eventFilter(watched, event);
}

// Returns false if the dialog was deleted with it.
bool ProfileChooser::applyEdits()
{
    const QPointer<ProfileChooser> chooser(this);
    if (m_edits->any())
        m_parts.dialog->applyButton()->click();
    return !chooser.isNull();
}

void ProfileChooser::applied()
{
    if (m_kit->saveLayout() != m_value)
        showProfile(QString());
}

void ProfileChooser::showProfile(const QString &current)
{
    m_value = m_kit->saveLayout();
    m_box->clear();
    m_box->addItems(m_kit->profiles());
    m_box->setCurrentIndex(m_box->findText(current));
    m_current = m_box->currentText();
    m_box->setEnabled(m_box->count() > 0);
    m_saveButton->setEnabled(m_kit->features() & RyToolBarKit::StoreChanges);
    m_removeButton->setEnabled(canRemove(m_current));
}

bool ProfileChooser::canRemove(const QString &name) const
{
    return (m_kit->features() & RyToolBarKit::StoreChanges) && m_box->findText(name) >= 0;
}

void ProfileChooser::choose(int index)
{
    const QString name = m_box->itemText(index);
    const auto switchTo = [this, name] {
        replace([this, name] { return m_kit->switchToProfile(name); }, name);
    };
    if (!m_edits->any()) {
        switchTo();
        return;
    }
    m_box->setCurrentIndex(m_box->findText(m_current));
    ask(tr("Switch to the profile “%1”?").arg(name), tr("Your changes in this dialog are lost."),
        switchTo);
}

void ProfileChooser::replace(const std::function<bool()> &replacement, const QString &current)
{
    const QPointer<ProfileChooser> chooser(this);
    const bool isReplaced = replacement();
    if (chooser.isNull())
        return;
    showProfile(isReplaced ? current : m_current);
    if (isReplaced)
        return;
    // A damaged profile never becomes the current one, which the button removes.
    const QString problem = tr("The layout cannot be used.");
    if (canRemove(current))
        askToRemove(current, problem);
    else
        report(problem);
}

void ProfileChooser::saveClicked()
{
    QInputDialog *const dialog = new QInputDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Save Profile"));
    dialog->setLabelText(tr("Name of the profile:"));
    dialog->setTextValue(m_current);
    connect(dialog, SIGNAL(textValueSelected(QString)), this, SLOT(save(QString)));
    dialog->open();
}

void ProfileChooser::save(const QString &text)
{
    const QString name = text.simplified();
    if (name.isEmpty())
        return;
    const auto saveNow = [this, name] {
        if (applyEdits() && m_kit->saveProfile(name))
            showProfile(name);
    };
    if (m_kit->profiles().contains(name))
        ask(tr("Replace the profile “%1”?").arg(name), QString(), saveNow);
    else
        saveNow();
}

void ProfileChooser::removeClicked()
{
    askToRemove(m_current, QString());
}

void ProfileChooser::askToRemove(const QString &name, const QString &details)
{
    ask(tr("Remove the profile “%1”?").arg(name), details, [this, name] {
        m_kit->removeProfile(name);
        showProfile(m_current);
    });
}

void ProfileChooser::importClicked()
{
    QFileDialog *const dialog = new QFileDialog(this, tr("Import Layout"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    chooseFile(dialog, SLOT(importFrom(QString)));
}

void ProfileChooser::exportClicked()
{
    QFileDialog *const dialog = new QFileDialog(this, tr("Export Layout"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    chooseFile(dialog, SLOT(exportTo(QString)));
}

void ProfileChooser::chooseFile(QFileDialog *dialog, const char *slot)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilter(tr("Layouts") + QStringLiteral(" (*.json)"));
    connect(dialog, SIGNAL(fileSelected(QString)), this, slot);
    dialog->open();
}

void ProfileChooser::importFrom(const QString &file)
{
    const auto importNow = [this, file] {
        replace([this, file] { return m_kit->importLayout(file); }, QString());
    };
    const QStringList unknown = m_kit->unknownNames(file);
    QStringList details;
    if (!unknown.isEmpty())
        details.append(tr("This program does not have: %1").arg(listed(unknown)));
    if (m_edits->any())
        details.append(tr("Your changes in this dialog are lost."));
    if (details.isEmpty())
        importNow();
    else
        ask(tr("Import this layout?"), details.join(QStringLiteral("\n\n")), importNow);
}

void ProfileChooser::exportTo(const QString &file)
{
    if (applyEdits() && !m_kit->exportLayout(file))
        report(tr("The file cannot be written."));
}

// Names may come from somebody else, so they are no rich text.
void ProfileChooser::ask(const QString &text, const QString &details,
                         const std::function<void()> &yes)
{
    QMessageBox *const box = new QMessageBox(QMessageBox::Question, m_parts.dialog->windowTitle(),
                                             text, QMessageBox::Yes | QMessageBox::No, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(details);
    connect(box, &QDialog::finished, this, [yes](int answer) {
        if (answer == QMessageBox::Yes)
            yes();
    });
    box->open();
}

void ProfileChooser::report(const QString &text)
{
    QMessageBox *const box = new QMessageBox(QMessageBox::Warning, m_parts.dialog->windowTitle(),
                                             text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

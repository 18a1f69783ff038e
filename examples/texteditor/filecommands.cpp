// SPDX-License-Identifier: MIT

#include "filecommands.h"

#include "actioncatalog.h"
#include "editorview.h"
#include "recentfiles.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextDocument>

FileCommands::FileCommands(const ActionCatalog &actions, EditorView *editor,
                           RecentFiles *recentFiles, QWidget *window)
    : QObject(window)
    , m_actions(actions)
    , m_editor(editor)
    , m_recentFiles(recentFiles)
    , m_window(window)
{
    connect(actions.action("file_new"), &QAction::triggered, this, &FileCommands::newDocument);
    connect(actions.action("file_open"), &QAction::triggered, this, &FileCommands::chooseAndOpen);
    connect(actions.action("file_reload"), &QAction::triggered, this, &FileCommands::reload);
    connect(actions.action("file_save"), &QAction::triggered, this, &FileCommands::save);
    connect(actions.action("file_save_as"), &QAction::triggered, this, &FileCommands::saveAs);
    connect(actions.action("help_tour"), &QAction::triggered, this, &FileCommands::openTour);
    connect(recentFiles, &RecentFiles::openRequested, this, &FileCommands::open);
    connect(editor->document(), &QTextDocument::modificationChanged, this,
            &FileCommands::updateActions);
    updateActions();
}

void FileCommands::newDocument()
{
    if (!mayDiscardChanges())
        return;
    m_file = TextFile();
    m_editor->setContent(QString(), false);
    setPath(QString());
}

void FileCommands::chooseAndOpen()
{
    const QString path =
        QFileDialog::getOpenFileName(m_window, tr("Open"), QFileInfo(m_path).path(),
                                     tr("Texts (*.txt *.html *.htm);;All files (*)"));
    if (!path.isEmpty())
        open(path);
}

bool FileCommands::open(const QString &path)
{
    return mayDiscardChanges() && load(path);
}

void FileCommands::reload()
{
    if (mayDiscardChanges())
        load(m_path);
}

void FileCommands::openTour()
{
    if (!mayDiscardChanges())
        return;
    m_file = TextFile();
    if (m_file.read(QStringLiteral(":/sample.html")))
        m_editor->setContent(m_file.text(), true);
    setPath(QString());
}

bool FileCommands::load(const QString &path)
{
    TextFile file;
    if (!file.read(path)) {
        reportError(file.error());
        m_recentFiles->remove(path);
        return false;
    }
    m_file = file;
    m_editor->setContent(file.text(), TextFile::isHtml(path));
    setPath(path);
    return true;
}

bool FileCommands::save()
{
    return m_path.isEmpty() ? saveAs() : writeTo(m_path);
}

bool FileCommands::saveAs()
{
    QFileDialog dialog(m_window, tr("Save As"), QFileInfo(m_path).path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(
        {tr("Plain text (*.txt)"), tr("Text with formats (*.html *.htm)"), tr("All files (*)")});
    const bool html = m_path.isEmpty() ? m_editor->hasFormats() : TextFile::isHtml(m_path);
    if (html)
        dialog.selectNameFilter(dialog.nameFilters().at(1));
    dialog.setDefaultSuffix(html ? QStringLiteral("html") : QStringLiteral("txt"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        const bool forHtml = filter == dialog.nameFilters().at(1);
        dialog.setDefaultSuffix(forHtml ? QStringLiteral("html") : QStringLiteral("txt"));
    });
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_savesPlain = false;
    return writeTo(dialog.selectedFiles().constFirst());
}

bool FileCommands::writeTo(const QString &path)
{
    const bool html = TextFile::isHtml(path);
    if (!html && !mayLoseFormats(path))
        return false;
    if (!m_file.write(path, html ? m_editor->htmlContent() : m_editor->plainContent())) {
        reportError(m_file.error());
        return false;
    }
    m_editor->document()->setModified(false);
    setPath(path);
    return true;
}

// Asks only once for each document.
bool FileCommands::mayLoseFormats(const QString &path)
{
    if (m_savesPlain || !m_editor->hasFormats())
        return true;
    const auto answer = QMessageBox::question(
        m_window, tr("Save"),
        tr("The formats of the text cannot be saved in %1. Save the text without them?")
            .arg(QDir::toNativeSeparators(path)),
        QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel);
    m_savesPlain = answer == QMessageBox::Save;
    return m_savesPlain;
}

bool FileCommands::mayDiscardChanges()
{
    if (!m_editor->document()->isModified())
        return true;
    const auto answer = QMessageBox::question(
        m_window, tr("Unsaved Changes"),
        tr("The document has changes that are not saved. Save them?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

void FileCommands::setPath(const QString &path)
{
    const QString absolute = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    if (absolute != m_path)
        m_savesPlain = false;
    m_path = absolute;
    if (!m_path.isEmpty())
        m_recentFiles->add(m_path);
    updateActions();
    Q_EMIT pathChanged(m_path);
}

void FileCommands::updateActions()
{
    const bool isModified = m_editor->document()->isModified();
    m_actions.action("file_save")->setEnabled(isModified || m_path.isEmpty());
    m_actions.action("file_reload")->setEnabled(!m_path.isEmpty());
}

void FileCommands::reportError(const QString &error)
{
    QMessageBox::warning(m_window, tr("Text Editor"), error);
}

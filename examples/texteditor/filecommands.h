// SPDX-License-Identifier: MIT

#ifndef FILECOMMANDS_H
#define FILECOMMANDS_H

#include "textfile.h"

#include <QObject>

class ActionCatalog;
class EditorView;
class RecentFiles;
class QWidget;

/*!
 * \brief New, Open, Reload, Save and Save As, and the question about changes that are not saved.
 */
class FileCommands : public QObject
{
    Q_OBJECT

public:
    //! All but the parent \a window must outlive the object; \a window owns it.
    FileCommands(const ActionCatalog &actions, EditorView *editor, RecentFiles *recentFiles,
                 QWidget *window);

    //! The absolute path of the document; empty for one that was never saved.
    QString path() const { return m_path; }

    //! Asks about unsaved changes first; reports errors. Returns false if nothing was opened.
    bool open(const QString &path);

    //! Returns true if nothing is lost when the document goes: nothing to save, saved, or given up.
    bool mayDiscardChanges();

public Q_SLOTS:
    void newDocument();
    void chooseAndOpen();
    void reload();
    bool save();
    bool saveAs();

    //! Opens a copy of the page about the toolbars that the application contains.
    void openTour();

Q_SIGNALS:
    //! The document has another path now.
    void pathChanged(const QString &path);

private:
    bool load(const QString &path);
    bool writeTo(const QString &path);
    bool mayLoseFormats(const QString &path);
    void setPath(const QString &path);
    void updateActions();
    void reportError();

    const ActionCatalog &m_actions;
    EditorView *const m_editor;
    RecentFiles *const m_recentFiles;
    QWidget *const m_window;
    TextFile m_file;
    QString m_path;
    // Whether the user has agreed to save this document without its formats.
    bool m_savesPlain = false;
};

#endif // FILECOMMANDS_H

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
    //! \a window owns the object; all other arguments must outlive it.
    FileCommands(const ActionCatalog &actions, EditorView *editor, RecentFiles *recentFiles,
                 QWidget *window);

    //! The absolute path of the document; empty if it was never saved.
    QString path() const { return m_path; }

    //! Asks about unsaved changes first; reports errors. Returns false if nothing was opened.
    bool open(const QString &path);

    //! Asks about unsaved changes. Returns true if there are none, or the user saved or discarded
    //! them.
    bool mayDiscardChanges();

public Q_SLOTS:
    void newDocument();
    void chooseAndOpen();
    void reload();
    bool save();
    bool saveAs();

    //! Opens a copy of the built-in page about the toolbars.
    void openTour();

Q_SIGNALS:
    //! The path of the document has changed.
    void pathChanged(const QString &path);

private:
    bool load(const QString &path);
    bool writeTo(const QString &path);
    bool mayLoseFormats(const QString &path);
    void setPath(const QString &path);
    void updateActions();
    void reportError(const QString &error);

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

// SPDX-License-Identifier: MIT

#ifndef EDITCOMMANDS_H
#define EDITCOMMANDS_H

#include <QObject>

class ActionCatalog;
class EditorView;
class FindBar;

/*!
 * \brief Connects the actions of the categories Edit and Tools that change the text to the editor,
 *        and enables those that can do something.
 */
class EditCommands : public QObject
{
    Q_OBJECT

public:
    //! The arguments must outlive the object; \a editor owns it.
    EditCommands(const ActionCatalog &actions, EditorView *editor, FindBar *findBar);

private:
    void connectClipboardActions();
    void connectLineActions();
    void connectSearchActions();
    void connectUpdates();
    void askForLine();
    void updateActions();
    void setReadOnly(bool readOnly);

    const ActionCatalog &m_actions;
    EditorView *const m_editor;
    FindBar *const m_findBar;
};

#endif // EDITCOMMANDS_H

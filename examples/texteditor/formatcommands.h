// SPDX-License-Identifier: MIT

#ifndef FORMATCOMMANDS_H
#define FORMATCOMMANDS_H

#include <QObject>

class ActionCatalog;
class EditorView;

/*!
 * \brief Connects the actions of the category Format to the editor. They show the format at the
 *        cursor.
 */
class FormatCommands : public QObject
{
    Q_OBJECT

public:
    //! The arguments must outlive the object; \a editor owns it.
    FormatCommands(const ActionCatalog &actions, EditorView *editor);

private:
    void connectCharacterActions();
    void connectParagraphActions();
    void chooseFont();
    void chooseTextColor();
    void showCharacterFormat();
    void showAlignment();
    void setReadOnly(bool readOnly);

    const ActionCatalog &m_actions;
    EditorView *const m_editor;
};

#endif // FORMATCOMMANDS_H

// SPDX-License-Identifier: MIT

#ifndef STATUSLINE_H
#define STATUSLINE_H

#include <QObject>

class EditorView;
class QLabel;
class QStatusBar;

/*!
 * \brief The content of the status bar: a notice on the left, the cursor's position on the right.
 */
class StatusLine : public QObject
{
    Q_OBJECT

public:
    //! \a statusBar owns the object; \a editor must outlive it.
    StatusLine(QStatusBar *statusBar, EditorView *editor);

    //! Shows \a text until the next notice. Status tips cover it only for a while.
    void setNotice(const QString &text);

    //! Shows \a kind, such as "Plain text", beside the position.
    void setDocumentKind(const QString &kind);

private:
    QLabel *addLabel(const char *name);
    void showPosition();

    QStatusBar *const m_statusBar;
    EditorView *const m_editor;
    QLabel *const m_notice;
    QLabel *const m_kind;
    QLabel *const m_position;
};

#endif // STATUSLINE_H

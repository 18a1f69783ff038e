// SPDX-License-Identifier: MIT

#ifndef DRESSING_H
#define DRESSING_H

#include <QIcon>
#include <QKeySequence>
#include <QObject>

class QListWidget;
class QToolButton;
class QTreeWidget;
class RyCustomizedDialog;

/*!
 * \brief Additions that a host can make to RyCustomizedDialog from outside: a filter for the
 *        actions, texts without "&", names for screen readers, shortcuts, the host's own help, and
 *        arrows that follow the layout direction.
 *
 * It finds the dialog's parts by their objectNames, which never change.
 *
 * \code
 * RyCustomizedDialog dialog({&manager, nullptr}, this);
 * new Dressing(&dialog);
 * dialog.exec();
 * \endcode
 *
 * With RyToolBarKit, do it when aboutToCustomize() is emitted.
 */
class Dressing : public QObject
{
    Q_OBJECT

public:
    //! \param dialog the dialog to change; it owns the new object.
    explicit Dressing(RyCustomizedDialog *dialog);

Q_SIGNALS:
    //! The user asks for help. The dialog's own placeholder is not shown.
    void helpRequested();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private Q_SLOTS:
    void describeItems();
    void pointArrows();

private:
    template <typename Widget> Widget *part(const char *name) const;
    void hideMnemonics();
    void addFilter();
    void addNames();
    void addShortcuts();
    void addShortcut(QWidget *view, const QKeySequence &key, QToolButton *button);
    void replaceHelp();

    RyCustomizedDialog *const m_dialog;
    QWidget *const m_page;
    QTreeWidget *const m_actionTree;
    QListWidget *const m_toolBarList;
    QListWidget *const m_currentToolBarList;
    QToolButton *const m_leftButton;
    QToolButton *const m_rightButton;
    const QIcon m_back;
    const QIcon m_forward;
};

#endif // DRESSING_H

// SPDX-License-Identifier: MIT

#ifndef PROFILECHOOSER_H
#define PROFILECHOOSER_H

#include "dialogparts.h"

#include <QByteArray>
#include <QWidget>

#include <functional>

class DialogEdits;
class QAbstractButton;
class QComboBox;
class QFileDialog;
class RyToolBarKit;

/*!
 * \brief The line of the dialog with the profiles, and with what imports and exports layouts.
 *
 * What the user saves or exports is what the dialog shows, so edits are applied first. Before edits
 * are lost, the user is asked. Nothing here waits for an answer in an event loop of its own: the
 * dialog may be deleted at any time.
 */
class ProfileChooser : public QWidget
{
    Q_OBJECT

public:
    /*!
     * \brief Puts the line above the tabs of \a dialog, which owns it.
     *
     * \param kit the one that has opened the dialog.
     * \param current the profile that the window has, or an empty string.
     */
    ProfileChooser(RyCustomizedDialog *dialog, const DialogEdits *edits, RyToolBarKit *kit,
                   const QString &current);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void choose(int index);
    void saveClicked();
    void save(const QString &text);
    void removeClicked();
    void importClicked();
    void importFrom(const QString &file);
    void exportClicked();
    void exportTo(const QString &file);
    void applied();

private:
    QAbstractButton *createButton(const char *name, const QString &text, const char *slot);
    bool applyEdits();
    void showProfile(const QString &current);
    bool canRemove(const QString &name) const;
    void replace(const std::function<bool()> &replacement, const QString &current);
    void askToRemove(const QString &name, const QString &details);
    void ask(const QString &text, const QString &details, const std::function<void()> &yes);
    void report(const QString &text);
    void chooseFile(QFileDialog *dialog, const char *slot);

    const DialogParts m_parts;
    const DialogEdits *m_edits;
    RyToolBarKit *m_kit;
    QComboBox *m_box;
    QAbstractButton *m_saveButton;
    QAbstractButton *m_removeButton;
    // The current profile, and the layout that it led to.
    QString m_current;
    QByteArray m_value;
};

#endif // PROFILECHOOSER_H

// SPDX-License-Identifier: MIT

#ifndef USERGUIDE_H
#define USERGUIDE_H

#include <QObject>

class QDialog;
class QUrl;
class RyCustomizedDialog;

/*!
 * \brief Opens the user guide as the help of a dialog, which owns it.
 *
 * A program with help of its own disconnects the Help button from the dialog, as without the kit.
 */
class UserGuide : public QObject
{
    Q_OBJECT

public:
    explicit UserGuide(RyCustomizedDialog *dialog);

    //! Returns where the guide is in the language of the dialog, or in English.
    static QUrl page();

private:
    void show();
    void createWindow();

    RyCustomizedDialog *const m_dialog;
    // Null until the guide is opened.
    QDialog *m_window;
};

#endif // USERGUIDE_H

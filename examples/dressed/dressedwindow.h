// SPDX-License-Identifier: MIT

#ifndef DRESSEDWINDOW_H
#define DRESSEDWINDOW_H

#include <RyToolBarManager>

#include <QMainWindow>
#include <QStyle>

class RyCustomizedDialog;

/*!
 * \brief A window with some commands that only show their names, and a dialog with all additions.
 */
class DressedWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit DressedWindow(QWidget *parent = nullptr);

private Q_SLOTS:
    void customizeToolBars();

private:
    struct Command
    {
        const char *name;
        QString text;
        QStyle::StandardPixmap icon;
    };

    void addCategory(const char *name, const QString &title, const QList<Command> &commands);
    void showHelp(RyCustomizedDialog *dialog);

    RyToolBarManager m_manager;
};

#endif // DRESSEDWINDOW_H

// SPDX-License-Identifier: MIT

#ifndef WINDOWREPORT_H
#define WINDOWREPORT_H

#include <QJsonObject>
#include <QList>

class QAction;
class QJsonArray;
class QMainWindow;

/*!
 * \brief Describes what a user sees of a main window, and what the program has set for it.
 *
 * Two reports of the same window are equal if nothing has changed. What the kit has created is
 * marked, or left out.
 */
class WindowReport
{
public:
    explicit WindowReport(const QMainWindow *window);

    QJsonObject json() const;

    /*!
     * \brief Lists all actions of the window, without separators and those of the kit.
     */
    QList<QAction *> actions() const;

private:
    QJsonArray toolBars() const;
    QJsonArray orderOfToolBars() const;
    QJsonArray docks() const;
    bool isOfKit(const QObject *object) const;

    const QMainWindow *m_window;
};

#endif // WINDOWREPORT_H

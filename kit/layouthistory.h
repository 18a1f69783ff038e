// SPDX-License-Identifier: MIT

#ifndef LAYOUTHISTORY_H
#define LAYOUTHISTORY_H

#include "kitlayout.h"

#include <QByteArray>

class QJsonArray;

/*!
 * \brief The steps that a user can undo and redo.
 *
 * A step has only the toolbars that it changed, and the places if it changed those. To undo or redo
 * it exchanges them with those of the layout, so that nothing else is touched, and nothing is lost
 * even if the layout is not the one that the step was recorded for.
 */
class LayoutHistory
{
public:
    /*!
     * \brief Makes \a layout what the next step begins with.
     */
    void setBase(const KitLayout &layout);

    /*!
     * \brief Adds a step if \a layout differs from what it begins with. Nothing can be redone then.
     */
    void record(const KitLayout &layout);

    bool canUndo() const { return !m_undo.isEmpty(); }
    bool canRedo() const { return !m_redo.isEmpty(); }

    /*!
     * \brief Exchanges what the last step changed, if there is one.
     */
    void undo(KitLayout *layout) { exchange(layout, &m_undo, &m_redo); }

    /*!
     * \brief Exchanges what the last undone step had changed, if there is one.
     */
    void redo(KitLayout *layout) { exchange(layout, &m_redo, &m_undo); }

    /*!
     * \brief Follows a toolbar of the program that has another name now.
     */
    void renameToolBar(const QString &before, const QString &now);

    /*!
     * \brief Returns true if the steps have changed since fromJson() or toJson().
     */
    bool isChanged() const { return m_isChanged; }

    /*!
     * \brief Returns the steps as text in UTF-8, without the oldest if all would be too large.
     */
    QByteArray toJson();

    /*!
     * \brief Returns the steps of a text, or none if it is damaged or of a newer format.
     */
    static LayoutHistory fromJson(const QByteArray &json);

private:
    struct Step
    {
        bool isEmpty() const { return toolBars.isEmpty() && !hasPlaces; }

        // The names of the toolbars that are exchanged.
        QStringList toolBars;
        // Their records; none for one that had nothing of the user.
        KitLayout records;
        bool hasPlaces = false;
        // The step as JSON, or empty if that was not needed yet.
        QByteArray json;
    };

    static Step difference(const KitLayout &before, const KitLayout &now);
    static QByteArray written(const Step &step);
    static QList<Step> read(const QJsonArray &array);
    static QByteArray joined(QList<Step> *steps, int *rest);
    void exchange(KitLayout *layout, QList<Step> *from, QList<Step> *to);

    // Without what a layout caches.
    KitLayout m_base;
    // The last ones are the next to be undone and redone.
    QList<Step> m_undo;
    QList<Step> m_redo;
    bool m_isChanged = false;
};

#endif // LAYOUTHISTORY_H

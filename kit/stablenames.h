// SPDX-License-Identifier: MIT

#ifndef STABLENAMES_H
#define STABLENAMES_H

#include <QHash>
#include <QString>
#include <QStringList>

class QAction;
class QMainWindow;
class QObject;
class QToolBar;

/*!
 * \brief Gives actions, or toolbars, of a window names that are the same in every run.
 *
 * Holds pointers of objects that may be deleted: they are never followed again.
 */
class StableNames
{
public:
    explicit StableNames(const QMainWindow *window);

    /*!
     * \brief Finds a name for an object that has none yet.
     */
    void add(const QAction *action);
    void add(const QToolBar *toolBar);
    /*!
     * \brief Gives a custom toolbar the name \a name.
     */
    void add(const QObject *object, const QString &name);

    /*!
     * \brief Returns the name that add() gives \a action if nothing else has it.
     */
    QString wantedName(const QAction *action) const;

    /*!
     * \brief Frees the name of an object.
     */
    void remove(const QObject *object);

    /*!
     * \brief Returns the name of an object, or an empty string.
     */
    QString nameOf(const QObject *object) const;

    /*!
     * \brief Returns the object of a name, or null.
     */
    QObject *object(const QString &name) const;

    /*!
     * \brief Returns what is wrong with the names, a sentence for each object.
     */
    QStringList problems() const;

    /*!
     * \brief Returns \a text without its mnemonic.
     */
    static QString plainText(const QString &text);

    /*!
     * \brief Returns a name such as "fontSize_box" as text: "Font Size Box".
     */
    static QString inWords(const QString &name);

    /*!
     * \brief Returns true if \a action has a name that is not made of its text.
     */
    bool hasName(const QAction *action) const;

private:
    QString nameFor(const QAction *action) const;
    QString memberOf(const QObject *object) const;
    void addUnique(const QObject *object, const QString &name, const QString &text);

    const QMainWindow *m_window;
    QHash<const QObject *, QString> m_names;
    QHash<QString, QObject *> m_objects;
    QHash<const QObject *, QString> m_problems;
};

#endif // STABLENAMES_H

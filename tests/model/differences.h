// SPDX-License-Identifier: MIT

#ifndef DIFFERENCES_H
#define DIFFERENCES_H

#include <QString>
#include <QStringList>

#include <map>
#include <set>
#include <vector>

/*
 * What differs between a model and the real thing. Texts are made only for what differs.
 */
class Differences
{
public:
    template <typename T> void compare(const char *what, const T &expected, const T &found)
    {
        if (!(expected == found))
            add(what, show(expected), show(found));
    }

    void add(const char *what, const QString &expected, const QString &found)
    {
        lines << QString("%1: expected %2, found %3").arg(what, expected, found);
    }

    QStringList lines;

private:
    static QString show(const QString &text) { return '"' + text + '"'; }
    static QString show(const QStringList &texts) { return show(texts.join('\n')); }
    static QString show(int number) { return QString::number(number); }
    static QString show(const void *address) { return QString::asprintf("%p", address); }

    template <typename K, typename V> static QString show(const std::pair<K, V> &pair)
    {
        return show(pair.first) + ':' + show(pair.second);
    }

    template <typename List> static QString showAll(const List &list)
    {
        QStringList texts;
        for (const auto &entry : list)
            texts << show(entry);
        return '[' + texts.join(' ') + ']';
    }

    template <typename T> static QString show(const std::vector<T> &list) { return showAll(list); }
    template <typename T> static QString show(const std::set<T> &list) { return showAll(list); }
    template <typename K, typename V> static QString show(const std::map<K, V> &map)
    {
        return showAll(map);
    }
};

#endif // DIFFERENCES_H

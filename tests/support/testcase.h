// SPDX-License-Identifier: MIT

#ifndef TESTCASE_H
#define TESTCASE_H

#include <QObject>
#include <QSet>
#include <QStringList>

class QWidget;

/*
 * The base of all test classes. A test function fails if it printed a warning that it did not take
 * with takeWarnings(), or if it left a top-level widget behind.
 */
class TestCase : public QObject
{
    Q_OBJECT

public:
    // The warnings since the test function began or since the last call, in order.
    static QStringList takeWarnings();

    // The same warnings with what was recorded of their source: "file:line function text".
    static QStringList takeLocatedWarnings();

public Q_SLOTS:
    void init();
    void cleanup();

protected:
    // For tests that need more before and after each function.
    virtual void prepare();
    virtual void finish();

private:
    QSet<QWidget *> m_topLevels;
};

#endif // TESTCASE_H

// SPDX-License-Identifier: MIT

/*
 * Wrong on purpose and built by nobody: tools/analyze.sh shows with it that its tools find
 * mistakes. Each comment names what has to be found in its line.
 */

#include <QDialog>
#include <QMap>

class Wrong : public QDialog
{
    Q_OBJECT

public:
    void makeConnections();
    int sum(int count);

private Q_SLOTS:
    void noted();
    void counted(int count);
};

// clang-format off
void Wrong::makeConnections()
{
    connect(this, SIGNAL(acceptd()), this, SLOT(noted())); // No such method acceptd
    connect(this, SIGNAL(accepted()), this, SLOT(notd())); // No such method notd
    connect(this, SIGNAL(accepted()), this, SLOT(counted(int))); // more parameters
    connect(this, SIGNAL(objectNameChanged(QString)), this, SLOT(counted(int))); // incompatible
    connect(this, SIGNAL(finished( int )), this, SLOT(counted(int))); // connect-not-normalized
    connect(this, &Wrong::noted, this, &Wrong::noted); // connect-non-signal
}

int Wrong::sum(int count)
{
    const QMap<int, int> map;
    int total = 0;
    for (int key : map.keys()) // container-anti-pattern
        total += key;
    int *pointer = NULL; // modernize-use-nullptr
    if (count)
        *pointer = total; // clang-analyzer-core.NullDereference
    total += 1.5; // narrowing-conversions
    char bytes[4] = {};
    bytes[4] = 1; // arrayIndexOutOfBounds
    unsigned int size = total; // Wsign-conversion
    return bytes[size];
}

/*!
 * \param amount is not what the parameter is called // Wdocumentation
 */
void documented(int count)
{
    static_cast<void>(count);
}
// clang-format on

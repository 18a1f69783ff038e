// SPDX-License-Identifier: MIT

#include "testcase.h"

#include <QDir>
#include <QLibrary>
#include <QtTest>

namespace {

const QString icon = ":/RyCustomizedDialog/images/up.png";

QSet<QString> topFolders()
{
    const QStringList names = QDir(":/").entryList();
    return QSet<QString>(names.begin(), names.end());
}

} // namespace

// This program is not linked with the library.
class tst_Icons_Loading : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theIconsComeAndGoWithTheLibrary();
    void theLibraryBringsOneCollection();
};

void tst_Icons_Loading::theIconsComeAndGoWithTheLibrary()
{
    QLibrary library(RY_LIBRARY);
    QVERIFY(!QFile::exists(icon));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(QFile::exists(icon));
    QVERIFY(library.unload());
    QVERIFY(!QFile::exists(icon));
}

void tst_Icons_Loading::theLibraryBringsOneCollection()
{
    QLibrary library(RY_LIBRARY);
    const QSet<QString> before = topFolders();
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QCOMPARE(topFolders() - before, QSet<QString>{"RyCustomizedDialog"});
    QVERIFY(library.unload());
    QCOMPARE(topFolders(), before);
}

QTEST_GUILESS_MAIN(tst_Icons_Loading)

#include "tst_icons_loading.moc"

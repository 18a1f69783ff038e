// SPDX-License-Identifier: MIT

#include "qtdifferences.h"
#include "testcase.h"

#include <QDir>
#include <QLibrary>
#include <QtTest>

#include <dlfcn.h>

namespace {

const QString icon = ":/RyCustomizedDialog/images/up.png";

QSet<QString> topFolders()
{
    const QStringList names = QDir(":/").entryList();
    return QSet<QString>(names.begin(), names.end());
}

bool isInMemory(const char *library)
{
    void *const handle = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle;
}

} // namespace

// This program is not linked with the library.
class tst_Icons_Loading : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theLibraryBringsOneCollection();
    void theIconsComeAndGoWithTheLibrary();
};

// The first function, because the library may stay in memory.
void tst_Icons_Loading::theLibraryBringsOneCollection()
{
    QLibrary library(RY_LIBRARY);
    const QSet<QString> before = topFolders();
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QCOMPARE(topFolders() - before, QSet<QString>{"RyCustomizedDialog"});
    QVERIFY(library.unload());
    if (!isInMemory(RY_LIBRARY))
        QCOMPARE(topFolders(), before);
}

void tst_Icons_Loading::theIconsComeAndGoWithTheLibrary()
{
    QLibrary library(RY_LIBRARY);
    QCOMPARE(QFile::exists(icon), isInMemory(RY_LIBRARY));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(QFile::exists(icon));
    QVERIFY(library.unload());
    QCOMPARE(QFile::exists(icon), isInMemory(RY_LIBRARY));
    QVERIFY(QtDifferences::librariesMayStay || !isInMemory(RY_LIBRARY));
}

QTEST_GUILESS_MAIN(tst_Icons_Loading)

#include "tst_icons_loading.moc"

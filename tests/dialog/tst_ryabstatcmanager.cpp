// SPDX-License-Identifier: MIT

#include "ryabstatcmanager.h"
#include "testcase.h"

#include <QtTest>

class tst_RyAbstatcManager : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void belongsToNoParent();
    void hasNoMetaObjectOfItsOwn();
};

void tst_RyAbstatcManager::belongsToNoParent()
{
    QVERIFY(!RyAbstatcManager().parent());
}

void tst_RyAbstatcManager::hasNoMetaObjectOfItsOwn()
{
    QCOMPARE(RyAbstatcManager().metaObject(), &QObject::staticMetaObject);
    // What qobject_cast asks at compile time.
    QVERIFY(!QtPrivate::HasQ_OBJECT_Macro<RyAbstatcManager>::Value);
}

QTEST_MAIN(tst_RyAbstatcManager)

#include "tst_ryabstatcmanager.moc"

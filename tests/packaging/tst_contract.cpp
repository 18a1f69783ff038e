// SPDX-License-Identifier: MIT

#include "ryabstatcmanager.h"
#include "rycribbonpage.h"
#include "rycribbonwidget.h"
#include "ryctoolbarpage.h"
#include "ryctoolbarwidget.h"
#include "rycusinterface.h"
#include "rycustomizeddialog.h"
#include "rytoolbarmanager.h"
#include "rytreeitemmimedata.h"
#include "rytreewidget.h"
#include "testcase.h"

#include <QFile>
#include <QMetaMethod>
#include <QMetaObject>
#include <QtTest>

#include <cstdio>
#include <cstring>

namespace {

QString accessOf(const QMetaMethod &method)
{
    switch (method.access()) {
    case QMetaMethod::Private:
        return QStringLiteral("private");
    case QMetaMethod::Protected:
        return QStringLiteral("protected");
    case QMetaMethod::Public:
        break;
    }
    return QStringLiteral("public");
}

QString kindOf(const QMetaMethod &method)
{
    switch (method.methodType()) {
    case QMetaMethod::Signal:
        return QStringLiteral("signal");
    case QMetaMethod::Slot:
        return QStringLiteral("slot");
    case QMetaMethod::Constructor:
        return QStringLiteral("constructor");
    case QMetaMethod::Method:
        break;
    }
    return QStringLiteral("method");
}

QString described(const QMetaMethod &method)
{
    const QString names = QString::fromLatin1(method.parameterNames().join(','));
    return QStringLiteral("  %1 %2 %3 %4 [%5]")
        .arg(accessOf(method), kindOf(method), QLatin1String(method.typeName()),
             QLatin1String(method.methodSignature()), names);
}

// What a class adds to the meta-object of its base class, in order.
QStringList described(const QMetaObject &meta)
{
    QStringList lines;
    lines << QStringLiteral("  meta-object %1, after %2")
                 .arg(QLatin1String(meta.className()),
                      QLatin1String(meta.superClass() ? meta.superClass()->className() : "none"));
    for (int i = 0; i < meta.constructorCount(); ++i)
        lines << described(meta.constructor(i));
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        lines << described(meta.method(i));
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        lines << QStringLiteral("  property %1").arg(QLatin1String(meta.property(i).name()));
    for (int i = meta.enumeratorOffset(); i < meta.enumeratorCount(); ++i)
        lines << QStringLiteral("  enumerator %1").arg(QLatin1String(meta.enumerator(i).name()));
    for (int i = meta.classInfoOffset(); i < meta.classInfoCount(); ++i)
        lines << QStringLiteral("  class info %1").arg(QLatin1String(meta.classInfo(i).name()));
    return lines;
}

template <typename Class> QStringList sizeOf(const char *name)
{
    return {QStringLiteral("%1: %2 bytes, aligned to %3")
                .arg(QLatin1String(name))
                .arg(sizeof(Class))
                .arg(alignof(Class))};
}

template <typename Class> QStringList objectClass(const char *name)
{
    // A class without Q_OBJECT shows the meta-object of its base class.
    const QMetaObject &meta = Class::staticMetaObject;
    if (std::strcmp(meta.className(), name) != 0)
        return sizeOf<Class>(name)
            << QStringLiteral("  meta-object of %1").arg(QLatin1String(meta.className()));
    return sizeOf<Class>(name) + described(meta);
}

QStringList contract()
{
    return objectClass<RyAbstatcManager>("RyAbstatcManager")
        + sizeOf<RyCRibbonPage>("RyCRibbonPage") //
        + objectClass<RyCRibbonWidget>("RyCRibbonWidget") + sizeOf<RyCToolBarPage>("RyCToolBarPage")
        + objectClass<RyCToolBarWidget>("RyCToolBarWidget")
        + sizeOf<RyCusInterface>("RyCusInterface")
        + objectClass<RyCustomizedDialog>("RyCustomizedDialog")
        + objectClass<RyToolBarManager>("RyToolBarManager")
        + objectClass<RyTreeItemMimeData>("RyTreeItemMimeData")
        + objectClass<RyTreeWidget>("RyTreeWidget");
}

QStringList writtenDown()
{
    QFile file(QFINDTESTDATA("contract/classes.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromLatin1(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

/*
 * The sizes and meta-objects of the exported classes against those written down in
 * contract/classes.txt. With --print, the program prints what belongs into that file.
 */
class tst_Contract : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizesAndMetaObjectsAreThoseWrittenDown();
};

void tst_Contract::sizesAndMetaObjectsAreThoseWrittenDown()
{
    const QStringList expected = writtenDown();
    const QStringList found = contract();
    for (int i = 0; i < qMin(found.size(), expected.size()); ++i)
        QCOMPARE(found.at(i), expected.at(i));
    QCOMPARE(found.size(), expected.size());
}

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--print") == 0)
        return std::puts(qPrintable(contract().join(QLatin1Char('\n')))) < 0 ? 1 : 0;
    QApplication app(argc, argv);
    tst_Contract test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_contract.moc"

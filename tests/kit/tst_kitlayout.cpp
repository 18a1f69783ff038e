// SPDX-License-Identifier: MIT

#include "kitlayout.h"
#include "testcase.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

class tst_KitLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLayoutIsReadAsItWasWritten();
    void aLayoutIsWrittenAsByTheFirstVersion();
    void anEmptyLayoutIsTheDefault();
    void eachPartMakesItDifferentFromTheDefault_data();
    void eachPartMakesItDifferentFromTheDefault();
    void keysOfALaterVersionAreKept();
    void textThatIsNotUnicodeDoesNotBreakTheChecksum();
    void namesOfEveryAlphabetDoNotBreakTheChecksum();
    void otherValuesAreRefused_data();
    void otherValuesAreRefused();
    void everyShorterValueIsRefused();
    void everyChangedByteIsRefusedOrChangesNothing();
    void strangeLayoutsAreReadAsFarAsTheyMakeSense();
    void strangeLooksAreThoseOfTheProgram_data();
    void strangeLooksAreThoseOfTheProgram();
};

namespace {

KitLayout sample()
{
    KitLayout layout;
    KitToolBar &edit = layout.toolBars["edit"];
    edit.customized = true;
    edit.entries = QStringList({"cut", QString(), "copy"});
    edit.known = QStringList({"copy", "cut", "paste"});
    KitToolBar &mine = layout.toolBars["_Custom_Toolbar_1"];
    mine.custom = true;
    mine.customized = true;
    mine.title = QString::fromUtf8("Mine – “ü”");
    mine.entries = QStringList({"open"});
    KitToolBar &view = layout.toolBars["view"];
    view.visibility = KitToolBar::Hidden;
    view.shownByProgram = true;
    view.look.iconSize = 32;
    view.look.iconSizeByProgram = 24;
    view.look.textPosition = "under";
    view.look.textPositionByProgram = "style";
    layout.locked = true;
    layout.places.lines["top"] = {{"edit", "_Custom_Toolbar_1"}, {"view"}};
    layout.places.floating["view"] = QPoint(-3, 40);
    return layout;
}

// A value with a correct checksum.
QByteArray sealed(const QByteArray &layout)
{
    const QByteArray compact = QJsonDocument::fromJson(layout).toJson(QJsonDocument::Compact);
    return "{\"format\":1,\"checksum\":\""
        + QCryptographicHash::hash(compact, QCryptographicHash::Sha1).toHex()
        + "\",\"layout\":" + compact + "}";
}

QString refusal(const QByteArray &value)
{
    QString reason;
    KitLayout::fromJson(value, &reason);
    return reason;
}

QByteArray rewritten(const QByteArray &value)
{
    QString reason;
    const KitLayout layout = KitLayout::fromJson(value, &reason);
    return reason.isEmpty() ? layout.toJson() : QByteArray();
}

} // namespace

void tst_KitLayout::aLayoutIsReadAsItWasWritten()
{
    QString reason = "something";
    const KitLayout layout = KitLayout::fromJson(sample().toJson(), &reason);
    QCOMPARE(reason, QString());
    QCOMPARE(layout.toolBars.keys(), sample().toolBars.keys());
    const KitToolBar edit = layout.toolBars.value("edit");
    QVERIFY(edit.customized && !edit.custom);
    QCOMPARE(edit.entries, QStringList({"cut", QString(), "copy"}));
    QVERIFY(edit.entries.at(1).isNull());
    QCOMPARE(edit.known, QStringList({"copy", "cut", "paste"}));
    QCOMPARE(edit.visibility, KitToolBar::AsProgrammed);
    const KitToolBar mine = layout.toolBars.value("_Custom_Toolbar_1");
    QVERIFY(mine.custom);
    QCOMPARE(mine.title, QString::fromUtf8("Mine – “ü”"));
    const KitToolBar view = layout.toolBars.value("view");
    QVERIFY(!view.customized && !view.custom);
    QCOMPARE(view.visibility, KitToolBar::Hidden);
    QVERIFY(view.shownByProgram);
    QVERIFY(view.look == sample().toolBars.value("view").look);
    QVERIFY(layout.locked);
    QVERIFY(layout.places == sample().places);
    QCOMPARE(layout.toJson(), sample().toJson());
}

void tst_KitLayout::aLayoutIsWrittenAsByTheFirstVersion()
{
    const QByteArray value =
        R"({"checksum":"CHECKSUM","format":1,"layout":{"locked":true,"places":{"floating":{"view":[-3,40]},)"
        R"("top":[["edit","_Custom_Toolbar_1"],["view"]]},"toolBars":{"_Custom_Toolbar_1":)"
        R"({"entries":["open"],"title":"Mine – “ü”"},"edit":{"entries":["cut",null,"copy"],)"
        R"("known":["copy","cut","paste"]},"view":{"iconSize":32,"iconSizeByProgram":24,"shown":false,)"
        R"("shownByProgram":true,"textPosition":"under","textPositionByProgram":"style"}}}})";
    QByteArray expected = value;
    expected.replace("CHECKSUM", "");
    QByteArray actual = sample().toJson();
    const int checksum = actual.indexOf("\"checksum\":\"") + 12;
    actual.remove(checksum, 40);
    QCOMPARE(actual, expected);
}

void tst_KitLayout::anEmptyLayoutIsTheDefault()
{
    KitLayout layout;
    QVERIFY(layout.isDefault());
    layout.toolBars["edit"]; // as the program has it
    layout.toolBars["view"];
    QVERIFY(layout.isDefault());
    QCOMPARE(layout.toJson(), KitLayout().toJson());
}

void tst_KitLayout::eachPartMakesItDifferentFromTheDefault_data()
{
    QTest::addColumn<QByteArray>("layout");
    QTest::newRow("content") << QByteArray(R"({"toolBars":{"a":{"entries":[]}}})");
    QTest::newRow("custom") << QByteArray(R"({"toolBars":{"a":{"title":""}}})");
    QTest::newRow("hidden") << QByteArray(R"({"toolBars":{"a":{"shown":false}}})");
    QTest::newRow("shown") << QByteArray(R"({"toolBars":{"a":{"shown":true}}})");
    QTest::newRow("icon size") << QByteArray(R"({"toolBars":{"a":{"iconSize":22}}})");
    QTest::newRow("text position") << QByteArray(R"({"toolBars":{"a":{"textPosition":"text"}}})");
    QTest::newRow("locked") << QByteArray(R"({"locked":true})");
    QTest::newRow("lines") << QByteArray(R"({"places":{"top":[["a"]]}})");
    QTest::newRow("floating") << QByteArray(R"({"places":{"floating":{"a":[1,2]}}})");
}

void tst_KitLayout::eachPartMakesItDifferentFromTheDefault()
{
    QFETCH(QByteArray, layout);
    QString reason;
    QVERIFY(!KitLayout::fromJson(sealed(layout), &reason).isDefault());
    QCOMPARE(reason, QString());
}

void tst_KitLayout::keysOfALaterVersionAreKept()
{
    const QByteArray layout =
        R"({"toolBars":{"a":{"entries":[],"known":[],"size":[1]},"b":{"size":2}},"x":{"y":2},"z":{}})";
    QByteArray value = sealed(layout);
    value.insert(1, "\"later\":true,");
    const QJsonObject kept = QJsonDocument::fromJson(rewritten(value)).object();
    QCOMPARE(kept.value("later"), QJsonValue(true));
    QCOMPARE(kept.value("layout").toObject(), QJsonDocument::fromJson(layout).object());
}

void tst_KitLayout::textThatIsNotUnicodeDoesNotBreakTheChecksum()
{
    KitLayout layout;
    KitToolBar &toolBar = layout.toolBars["a"];
    toolBar.custom = true;
    toolBar.title = QString(QChar(0xd800)) + QChar('x');
    layout.toolBars[toolBar.title] = toolBar;
    QCOMPARE(refusal(layout.toJson()), QString());
}

// Qt sorts U+1F600 before U+FB01 in an object that was built, and after it in one that was read.
void tst_KitLayout::namesOfEveryAlphabetDoNotBreakTheChecksum()
{
    KitLayout layout;
    for (const char *name :
         {"a", "ab", "B", "\u00fc", "\u4e2d", "\ufb01", "\U0001f600", "\"\\\n"}) {
        layout.toolBars[QString::fromUtf8(name)].visibility = KitToolBar::Hidden;
        layout.places.floating[QString::fromUtf8(name)] = QPoint(1, 2);
    }
    QString reason;
    const KitLayout read = KitLayout::fromJson(layout.toJson(), &reason);
    QCOMPARE(reason, QString());
    QCOMPARE(read.toolBars.size(), 8);
    QVERIFY(read.toolBars == layout.toolBars);
    QVERIFY(read.places == layout.places);
    QCOMPARE(read.toJson(), layout.toJson());
}

void tst_KitLayout::otherValuesAreRefused_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("reason");

    QByteArray newer = sealed("{}");
    newer.replace("\"format\":1", "\"format\":2");
    QByteArray damaged = sample().toJson();
    damaged.replace("cut", "cat");
    QByteArray many = R"({"toolBars":{)";
    for (int i = 0; i < 1001; ++i)
        many += (i == 0 ? "\"" : ",\"") + QByteArray::number(i) + "\":{}";
    many += "}}";
    QByteArray wide =
        R"({"toolBars":{"a":{"entries":[0)" + QByteArray(",0").repeated(1000) + "]}}}";

    const QString other = "the value is not a layout of toolbars";
    const QString tooMany = "the layout has too many toolbars or entries";
    QTest::newRow("nothing") << QByteArray() << other;
    QTest::newRow("text") << QByteArray("hello") << other;
    QTest::newRow("an array") << QByteArray("[1]") << other;
    QTest::newRow("no layout") << QByteArray(R"({"format":1,"checksum":""})") << other;
    QTest::newRow("no format") << QByteArray(R"({"layout":{},"checksum":""})") << other;
    QTest::newRow("newer") << newer << "the layout is from a newer version";
    QTest::newRow("damaged") << damaged << "the layout is damaged: its checksum is wrong";
    QTest::newRow("many toolbars") << sealed(many) << tooMany;
    QTest::newRow("many entries") << sealed(wide) << tooMany;
    const int space = 1000000 - sealed("{}").size();
    QTest::newRow("large") << sealed("{}") + QByteArray(space + 1, ' ')
                           << "the value is larger than 1 MB";
    QTest::newRow("as large as allowed") << sealed("{}") + QByteArray(space, ' ') << QString();
}

void tst_KitLayout::otherValuesAreRefused()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, reason);
    QString given;
    const KitLayout layout = KitLayout::fromJson(value, &given);
    QCOMPARE(given, reason);
    QVERIFY(layout.isDefault());
}

void tst_KitLayout::everyShorterValueIsRefused()
{
    const QByteArray value = sample().toJson();
    for (int size = 0; size < value.size(); ++size)
        QVERIFY2(!refusal(value.left(size)).isEmpty(), QByteArray::number(size).constData());
}

void tst_KitLayout::everyChangedByteIsRefusedOrChangesNothing()
{
    const QByteArray value = sample().toJson();
    for (int i = 0; i < value.size(); ++i) {
        for (const char change : {'\x01', '\x20', '\x80'}) {
            QByteArray damaged = value;
            damaged[i] = char(damaged.at(i) ^ change);
            const QByteArray again = rewritten(damaged);
            QVERIFY2(again.isEmpty() || again == value, damaged.constData());
        }
    }
}

void tst_KitLayout::strangeLayoutsAreReadAsFarAsTheyMakeSense()
{
    const QByteArray layout =
        R"({"toolBars":{"a":{"entries":["x","x","",3,null],"known":[null,"y","y"]},"b":7,"c":{"shown":false}},)"
        R"("places":{"top":[["a","a"],["a"],[]],"left":5,"floating":{"a":"here"}}})";
    QString reason;
    const KitLayout read = KitLayout::fromJson(sealed(layout), &reason);
    QCOMPARE(reason, QString());
    QCOMPARE(read.toolBars.value("a").entries, QStringList({"x", QString()}));
    QCOMPARE(read.toolBars.value("a").known, QStringList({"y"}));
    QVERIFY(read.toolBars.value("b").isDefault());
    QCOMPARE(read.toolBars.value("c").visibility, KitToolBar::Hidden);
    QVERIFY(read.toolBars.value("c").shownByProgram);
    QCOMPARE(read.places.lines.keys(), QStringList({"top"}));
    QCOMPARE(read.places.lines.value("top"), QList<QStringList>({{"a"}}));
    QCOMPARE(read.places.floating.value("a", QPoint(1, 1)), QPoint(0, 0));
}

void tst_KitLayout::strangeLooksAreThoseOfTheProgram_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *name, const QByteArray &keys, const QByteArray &written) {
        QTest::newRow(name) << keys << written;
    };
    row("no size", R"("iconSize":0)", "");
    row("a negative size", R"("iconSize":-16)", "");
    row("too small", R"("iconSize":7)", "");
    row("too large", R"("iconSize":129)", "");
    row("far too large", R"("iconSize":1e99)", "");
    row("half a pixel", R"("iconSize":16.5)", "");
    row("a size as text", R"("iconSize":"16")", "");
    row("smallest", R"("iconSize":8)", R"("iconSize":8,"iconSizeByProgram":0)");
    row("largest", R"("iconSize":128,"iconSizeByProgram":"x")",
        R"("iconSize":128,"iconSizeByProgram":0)");
    row("another position", R"("textPosition":"over")", "");
    row("a position as number", R"("textPosition":1)", "");
    row("that of the style", R"("textPosition":"style")", "");
    row("no position of the program", R"("textPosition":"beside","textPositionByProgram":3)",
        R"("textPosition":"beside","textPositionByProgram":"icons")");
    row("of the program alone", R"("iconSizeByProgram":8,"textPositionByProgram":"text")", "");
}

void tst_KitLayout::strangeLooksAreThoseOfTheProgram()
{
    QFETCH(QByteArray, keys);
    QFETCH(QByteArray, written);
    const QByteArray again = rewritten(sealed(R"({"toolBars":{"a":{)" + keys + "}}}"));
    const QByteArray expected =
        written.isEmpty() ? R"({"toolBars":{}})" : R"({"toolBars":{"a":{)" + written + "}}}";
    QCOMPARE(QJsonDocument::fromJson(again).object().value("layout").toObject(),
             QJsonDocument::fromJson(expected).object());
}

QTEST_MAIN(tst_KitLayout)
#include "tst_kitlayout.moc"

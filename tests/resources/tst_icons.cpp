// SPDX-License-Identifier: MIT

#include "testcase.h"

#include <QDirIterator>
#include <QImage>
#include <QResource>
#include <QtEndian>
#include <QtTest>

namespace {

const QString folder = ":/RyCustomizedDialog/images/";

// What main() saw before it constructed anything.
QStringList filesBeforeTheApplication;

QStringList filesBelow(const QString &path)
{
    QStringList files;
    QDirIterator iterator(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files << iterator.next();
    files.sort();
    return files;
}

const QStringList names = {"back", "down", "forward", "minus", "plus", "up"};

QStringList allFiles()
{
    QStringList files;
    for (const QString &name : names) {
        for (const char *suffix : {"", "@2x", "@3x"})
            files << folder + name + suffix + ".png";
    }
    return files;
}

// How much larger an image is than the icon on a coarse screen.
int factorOf(const QString &path)
{
    return path.contains("@2x") ? 2 : path.contains("@3x") ? 3 : 1;
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

struct Chunk
{
    QByteArray type;
    QByteArray data;
};

// The chunks of a PNG file; empty unless every length fits and the file begins as one.
QList<Chunk> chunksOf(const QByteArray &png)
{
    QList<Chunk> chunks;
    if (!png.startsWith("\x89PNG\r\n\x1a\n"))
        return chunks;
    int position = 8;
    while (position + 12 <= png.size()) {
        const int length = qFromBigEndian<qint32>(png.constData() + position);
        if (length < 0 || length > png.size() - position - 12)
            return {};
        chunks.append({png.mid(position + 4, 4), png.mid(position + 8, length)});
        position += 12 + length;
    }
    return position == png.size() ? chunks : QList<Chunk>();
}

bool hasChunk(const QList<Chunk> &chunks, const QByteArray &type)
{
    return std::any_of(chunks.begin(), chunks.end(),
                       [&type](const Chunk &chunk) { return chunk.type == type; });
}

QImage imageOf(const QString &name)
{
    return QImage(folder + name + ".png").convertToFormat(QImage::Format_ARGB32);
}

// Opaque enough to be seen as belonging to the shape.
bool isFilled(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y)) >= 128;
}

QRect boundsOf(const QImage &image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isFilled(image, x, y))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

int filledInRow(const QImage &image, int y)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += isFilled(image, x, y);
    return count;
}

int filledInColumn(const QImage &image, int x)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        count += isFilled(image, x, y);
    return count;
}

// The darkest pixel on the way from the left border to the middle of the row.
int outlineValue(const QImage &image, int y)
{
    int value = 255;
    for (int x = 0; x < image.width() / 2; ++x) {
        if (isFilled(image, x, y))
            value = qMin(value, QColor::fromRgba(image.pixel(x, y)).value());
    }
    return value;
}

bool isBetween(int low, int value, int high)
{
    return low <= value && value <= high;
}

} // namespace

class tst_Icons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void areThereBeforeAnythingIsConstructed();
    void areSixIconsInThreeSizes();
    void theCollectionHoldsOneFolder();
    void areStoredUncompressed_data();
    void areStoredUncompressed();
    void areStoredInTheFirstFormat_data();
    void areStoredInTheFirstFormat();
    void haveNoVariants_data();
    void haveNoVariants();
    void areTheCommittedImages_data();
    void areTheCommittedImages();
    void havePngHeader_data();
    void havePngHeader();
    void areDrawnOnTransparentGround_data();
    void areDrawnOnTransparentGround();
    void areAllDifferent();
    void theLargeImagesShowTheSame_data();
    void theLargeImagesShowTheSame();
    void theArrowsAreBroad_data();
    void theArrowsAreBroad();
    void theArrowsPointTheirWay();
    void theArrowsAreOliveGreenWithADarkOutline_data();
    void theArrowsAreOliveGreenWithADarkOutline();
    void thePlusFillsNearlyTheSquare();
    void thePlusHasBarsOfEightPixels();
    void theMinusIsTheHorizontalBarOfThePlus();
    void theSignsAreLightBlueWithADarkOutline_data();
    void theSignsAreLightBlueWithADarkOutline();
    void canBeUnregisteredAndRegistered();

private:
    static void addFiles();
    static void addImages(const QStringList &images);
};

void tst_Icons::addFiles()
{
    QTest::addColumn<QString>("path");
    const auto files = allFiles();
    for (const QString &path : files)
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
}

void tst_Icons::addImages(const QStringList &images)
{
    QTest::addColumn<QString>("name");
    for (const QString &name : images)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Icons::areThereBeforeAnythingIsConstructed()
{
    QCOMPARE(filesBeforeTheApplication, allFiles());
}

void tst_Icons::areSixIconsInThreeSizes()
{
    QCOMPARE(filesBelow(":/RyCustomizedDialog"), allFiles());
}

void tst_Icons::theCollectionHoldsOneFolder()
{
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(":/RyCustomizedDialog").entryList(all), QStringList{"images"});
    QCOMPARE(QDir(folder).entryList(all).size(), 18);
}

void tst_Icons::areStoredUncompressed_data()
{
    addFiles();
}

void tst_Icons::areStoredUncompressed()
{
    QFETCH(QString, path);
    const QResource resource(path);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
    const QByteArray stored(reinterpret_cast<const char *>(resource.data()), int(resource.size()));
    QCOMPARE(stored, bytesOf(path));
}

void tst_Icons::areStoredInTheFirstFormat_data()
{
    addFiles();
}

// Only later formats keep the time of the last change.
void tst_Icons::areStoredInTheFirstFormat()
{
    QFETCH(QString, path);
    QVERIFY(!QResource(path).lastModified().isValid());
}

void tst_Icons::haveNoVariants_data()
{
    addFiles();
}

void tst_Icons::haveNoVariants()
{
    QFETCH(QString, path);
    const uchar *const data = QResource(path, QLocale::c()).data();
    QVERIFY(data);
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    QVERIFY(locales.size() > 100);
    for (const QLocale &locale : locales)
        QCOMPARE(QResource(path, locale).data(), data);
}

void tst_Icons::areTheCommittedImages_data()
{
    addFiles();
}

void tst_Icons::areTheCommittedImages()
{
    QFETCH(QString, path);
    const QString committed = RY_IMAGES_DIR "/" + QFileInfo(path).fileName();
    QVERIFY(QFileInfo::exists(committed));
    QCOMPARE(bytesOf(path), bytesOf(committed));
}

void tst_Icons::havePngHeader_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("colourType");
    const auto files = allFiles();
    for (const QString &path : files) {
        const QString name = QFileInfo(path).baseName();
        const bool palette = name.startsWith("plus") || name.startsWith("minus");
        QTest::newRow(qPrintable(name)) << path << (palette ? 3 : 6);
    }
}

// Width and height in four bytes each, bit depth, colour type.
void tst_Icons::havePngHeader()
{
    QFETCH(QString, path);
    QFETCH(int, colourType);
    const auto chunks = chunksOf(bytesOf(path));
    QVERIFY(!chunks.isEmpty());
    QCOMPARE(chunks.first().type, QByteArray("IHDR"));
    const QByteArray header = chunks.first().data;
    QCOMPARE(header.size(), 13);
    QCOMPARE(qFromBigEndian<qint32>(header.constData()), 22 * factorOf(path));
    QCOMPARE(qFromBigEndian<qint32>(header.constData() + 4), 22 * factorOf(path));
    QCOMPARE(int(header.at(8)), 8);
    QCOMPARE(int(header.at(9)), colourType);
    QCOMPARE(hasChunk(chunks, "PLTE"), colourType == 3);
    QCOMPARE(hasChunk(chunks, "tRNS"), colourType == 3);
    QCOMPARE(chunks.last().type, QByteArray("IEND"));
}

void tst_Icons::areDrawnOnTransparentGround_data()
{
    addFiles();
}

void tst_Icons::areDrawnOnTransparentGround()
{
    QFETCH(QString, path);
    const QImage image(path);
    QCOMPARE(image.size(), QSize(22, 22) * factorOf(path));
    const QRect area = image.rect();
    for (const QPoint &corner :
         {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()})
        QCOMPARE(qAlpha(image.pixel(corner)), 0);
    QCOMPARE(qAlpha(image.pixel(area.center())), 255);
}

void tst_Icons::areAllDifferent()
{
    QSet<QByteArray> contents;
    const auto files = allFiles();
    for (const QString &path : files)
        contents.insert(bytesOf(path));
    QCOMPARE(contents.size(), 18);
}

void tst_Icons::theLargeImagesShowTheSame_data()
{
    addImages(names);
}

void tst_Icons::theLargeImagesShowTheSame()
{
    QFETCH(QString, name);
    const QImage small = imageOf(name);
    for (const char *suffix : {"@2x", "@3x"}) {
        const QImage large =
            imageOf(name + suffix)
                .scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        int different = 0;
        for (int y = 0; y < small.height(); ++y) {
            for (int x = 0; x < small.width(); ++x)
                different += isFilled(small, x, y) != isFilled(large, x, y);
        }
        QVERIFY2(different <= 8, qPrintable(QString::number(different)));
        const QColor smallFill = small.pixelColor(11, 11);
        const QColor largeFill = large.pixelColor(11, 11);
        QVERIFY2(qAbs(smallFill.hue() - largeFill.hue()) <= 5, qPrintable(largeFill.name()));
        QVERIFY2(qAbs(smallFill.value() - largeFill.value()) <= 10, qPrintable(largeFill.name()));
    }
}

void tst_Icons::theArrowsAreBroad_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("up") << "up" << QSize(17, 16);
    QTest::newRow("down") << "down" << QSize(17, 16);
    QTest::newRow("back") << "back" << QSize(16, 17);
    QTest::newRow("forward") << "forward" << QSize(16, 17);
}

void tst_Icons::theArrowsAreBroad()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QSize bounds = boundsOf(imageOf(name)).size();
    QVERIFY(qAbs(bounds.width() - size.width()) <= 1);
    QVERIFY(qAbs(bounds.height() - size.height()) <= 1);
}

// Narrow where it points, broad where it comes from.
void tst_Icons::theArrowsPointTheirWay()
{
    const QImage up = imageOf("up");
    QVERIFY(filledInRow(up, boundsOf(up).top()) <= 3);
    QVERIFY(filledInRow(up, boundsOf(up).bottom()) >= 7);
    const QImage down = imageOf("down");
    QVERIFY(filledInRow(down, boundsOf(down).bottom()) <= 3);
    QVERIFY(filledInRow(down, boundsOf(down).top()) >= 7);
    const QImage back = imageOf("back");
    QVERIFY(filledInColumn(back, boundsOf(back).left()) <= 3);
    QVERIFY(filledInColumn(back, boundsOf(back).right()) >= 7);
    const QImage forward = imageOf("forward");
    QVERIFY(filledInColumn(forward, boundsOf(forward).right()) <= 3);
    QVERIFY(filledInColumn(forward, boundsOf(forward).left()) >= 7);
}

void tst_Icons::theArrowsAreOliveGreenWithADarkOutline_data()
{
    addImages({"up", "down", "back", "forward"});
}

void tst_Icons::theArrowsAreOliveGreenWithADarkOutline()
{
    QFETCH(QString, name);
    const QImage image = imageOf(name);
    const QColor fill = image.pixelColor(11, 11);
    QVERIFY2(isBetween(50, fill.hue(), 95), qPrintable(fill.name()));
    QVERIFY2(isBetween(80, fill.value(), 200), qPrintable(fill.name()));
    QVERIFY(outlineValue(image, 11) < fill.value() - 30);
}

void tst_Icons::thePlusFillsNearlyTheSquare()
{
    const QRect bounds = boundsOf(imageOf("plus"));
    QVERIFY(bounds.width() >= 19);
    QCOMPARE(bounds.width(), bounds.height());
    QCOMPARE(bounds.left(), 21 - bounds.right());
    QCOMPARE(bounds.top(), 21 - bounds.bottom());
}

void tst_Icons::thePlusHasBarsOfEightPixels()
{
    const QImage plus = imageOf("plus");
    for (int i = 2; i < 6; ++i) {
        QCOMPARE(filledInColumn(plus, i), 8);
        QCOMPARE(filledInColumn(plus, 21 - i), 8);
        QCOMPARE(filledInRow(plus, i), 8);
        QCOMPARE(filledInRow(plus, 21 - i), 8);
    }
}

void tst_Icons::theMinusIsTheHorizontalBarOfThePlus()
{
    const QImage plus = imageOf("plus");
    const QImage minus = imageOf("minus");
    const QRect bar(boundsOf(plus).left(), 7, boundsOf(plus).width(), 8);
    QCOMPARE(boundsOf(minus), bar);
    for (int x = 0; x < 6; ++x) {
        for (int y = 0; y < 22; ++y) {
            QCOMPARE(isFilled(minus, x, y), isFilled(plus, x, y));
            QCOMPARE(isFilled(minus, 21 - x, y), isFilled(plus, 21 - x, y));
        }
    }
    for (int x = 6; x < 16; ++x)
        QCOMPARE(filledInColumn(minus, x), 8);
}

void tst_Icons::theSignsAreLightBlueWithADarkOutline_data()
{
    addImages({"plus", "minus"});
}

void tst_Icons::theSignsAreLightBlueWithADarkOutline()
{
    QFETCH(QString, name);
    const QImage image = imageOf(name);
    const QColor fill = image.pixelColor(11, 11);
    QVERIFY2(isBetween(195, fill.hue(), 240), qPrintable(fill.name()));
    QVERIFY2(fill.lightness() > 150, qPrintable(fill.name()));
    QVERIFY(outlineValue(image, 11) < fill.value() - 30);
}

void tst_Icons::canBeUnregisteredAndRegistered()
{
    Q_CLEANUP_RESOURCE(RyCustomizedDialog);
    const QStringList afterCleanUp = filesBelow(":/RyCustomizedDialog");
    Q_INIT_RESOURCE(RyCustomizedDialog);
    QCOMPARE(afterCleanUp, QStringList());
    QCOMPARE(filesBelow(":/RyCustomizedDialog"), allFiles());
}

int main(int argc, char **argv)
{
    filesBeforeTheApplication = filesBelow(":/RyCustomizedDialog");
    QCoreApplication application(argc, argv);
    tst_Icons test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_icons.moc"

// SPDX-License-Identifier: MIT

#include "comparison.h"
#include "counted.h"
#include "memory.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTextStream>

#include <cstdio>
#include <malloc.h>

namespace {

const int RoundsOfRow = 11;
const int RoundsOfPoint = 5;

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

// The platform plugin prints this warning for each new window.
void printMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.contains(QLatin1String("propagateSizeHints")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

const char *nameOf(Row::Kind kind)
{
    switch (kind) {
    case Row::Ratio:
        return "ratio";
    case Row::Growth:
        return "growth";
    case Row::GrowthByBare:
        return "growth by bare";
    case Row::Milliseconds:
        return "milliseconds";
    case Row::Beyond:
        return "beyond";
    case Row::Figure:
        break;
    }
    return "figure";
}

double valueOf(const Row &row, const Comparison &comparison)
{
    switch (row.kind) {
    case Row::Ratio:
    case Row::Figure:
        return comparison.ratio(Comparison::Ours, 0, Comparison::Bare, 0);
    case Row::Growth:
        return comparison.ratio(Comparison::Ours, 1, Comparison::Ours, 0);
    case Row::GrowthByBare:
        return comparison.ratio(Comparison::Ours, 1, Comparison::Ours, 0)
            / comparison.ratio(Comparison::Bare, 1, Comparison::Bare, 0);
    case Row::Beyond:
        return (comparison.time(Comparison::Ours, 0) - comparison.time(Comparison::Bare, 0)) * 1000;
    case Row::Milliseconds:
        break;
    }
    return comparison.time(Comparison::Ours, 0) * 1000;
}

QJsonArray milliseconds(const Comparison &comparison, Comparison::Which which, int sizes)
{
    QJsonArray times;
    for (int i = 0; i < sizes; ++i)
        times.append(comparison.time(which, i) * 1000);
    return times;
}

QJsonObject measureRow(const Row &row, double seconds, bool bareOnly)
{
    Family family = *familyOf(QLatin1String(row.family));
    if (bareOnly)
        family.ours = family.bare;
    Comparison comparison(family, row.sizes);
    comparison.measure(seconds, RoundsOfRow);
    const int sizes = row.sizes.size();
    return {{QStringLiteral("family"), QLatin1String(row.family)},
            {QStringLiteral("title"), row.title},
            {QStringLiteral("kind"), QLatin1String(nameOf(row.kind))},
            {QStringLiteral("target"), row.target},
            {QStringLiteral("value"), valueOf(row, comparison)},
            {QStringLiteral("ours"), milliseconds(comparison, Comparison::Ours, sizes)},
            {QStringLiteral("bare"), milliseconds(comparison, Comparison::Bare, sizes)},
            {QStringLiteral("rounds"), comparison.rounds()}};
}

// Each figure has a separate process. Otherwise the heap left behind by others would slow down the
// side that is built first.
QJsonDocument inOwnProcess(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForFinished(-1);
    if (process.exitCode() != 0 || process.exitStatus() != QProcess::NormalExit)
        qFatal("%s failed", qPrintable(arguments.join(QLatin1Char(' '))));
    return QJsonDocument::fromJson(process.readAllStandardOutput());
}

QJsonArray measureRows(const QString &seconds, const QString &only, bool bareOnly)
{
    QJsonArray array;
    const auto all = rows();
    for (int i = 0; i < all.size(); ++i) {
        const Row &row = all.at(i);
        if (!only.isEmpty() && only != QLatin1String(row.family))
            continue;
        QStringList arguments{QStringLiteral("--row"), QString::number(i),
                              QStringLiteral("--seconds"), seconds};
        if (bareOnly)
            arguments.append(QStringLiteral("--bare"));
        const QJsonObject object = inOwnProcess(arguments).object();
        array.append(object);
        out() << QStringLiteral("[%1/%2] %3: %4 (%5 ms, bare Qt %6 ms, %7 rounds)")
                     .arg(i + 1, 2)
                     .arg(all.size())
                     .arg(row.title)
                     .arg(object.value(QStringLiteral("value")).toDouble(), 0, 'f', 2)
                     .arg(object.value(QStringLiteral("ours")).toArray().last().toDouble(), 0, 'g',
                          3)
                     .arg(object.value(QStringLiteral("bare")).toArray().last().toDouble(), 0, 'g',
                          3)
                     .arg(object.value(QStringLiteral("rounds")).toInt())
              << Qt::endl;
    }
    return array;
}

QJsonArray measurePoint(const Curve &curve, int number, double seconds)
{
    Comparison comparison(*familyOf(QLatin1String(curve.family)), {curve.size(number)});
    comparison.measure(seconds, RoundsOfPoint);
    return {number, comparison.time(Comparison::Ours, 0) * 1000,
            comparison.time(Comparison::Bare, 0) * 1000};
}

QJsonArray measureCurves(const QString &seconds)
{
    QJsonArray array;
    const auto all = curves();
    for (int i = 0; i < all.size(); ++i) {
        const Curve &curve = all.at(i);
        out() << QStringLiteral("Curve of %1 by %2").arg(curve.title, curve.axis) << Qt::endl;
        QJsonArray points;
        for (const int n : {10, 30, 100, 300, 1000, 3000, 10000}) {
            if (n <= curve.greatest) {
                points.append(inOwnProcess({QStringLiteral("--curve"), QString::number(i),
                                            QStringLiteral("--number"), QString::number(n),
                                            QStringLiteral("--seconds"), seconds})
                                  .array());
            }
        }
        array.append(QJsonObject{{QStringLiteral("title"), curve.title},
                                 {QStringLiteral("axis"), curve.axis},
                                 {QStringLiteral("points"), points}});
    }
    return array;
}

QJsonArray memoryRows()
{
    QJsonArray array;
    const auto figures = measureMemory();
    for (const MemoryFigure &figure : figures) {
        out() << QStringLiteral("%1: %2 (bare Qt %3)")
                     .arg(figure.title)
                     .arg(figure.ours, 0, 'f', 0)
                     .arg(figure.bare, 0, 'f', 0)
              << Qt::endl;
        array.append(QJsonObject{{QStringLiteral("title"), figure.title},
                                 {QStringLiteral("ours"), figure.ours},
                                 {QStringLiteral("bare"), figure.bare},
                                 {QStringLiteral("target"), figure.target}});
    }
    return array;
}

void print(const QJsonDocument &document)
{
    out() << document.toJson() << Qt::flush;
}

bool write(const QString &fileName, const QJsonObject &object)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) > 0;
}

QStringList resultOf(Side *side)
{
    side->prepare();
    side->run();
    const QStringList result = side->result();
    side->finish();
    return result;
}

QStringList differencesOf(Side *ours, Side *bare)
{
    const QStringList one = resultOf(ours);
    const QStringList other = resultOf(bare);
    QStringList differences;
    for (int line = 0; line < qMax(one.size(), other.size()); ++line) {
        if (one.value(line) != other.value(line))
            differences << one.value(line) << other.value(line);
    }
    return differences;
}

// Checks that both sides of each operation give the same result, twice.
bool check()
{
    bool same = true;
    for (const Family &family : families()) {
        const auto ours = family.ours(family.small);
        const auto bare = family.bare(family.small);
        const QStringList differences =
            differencesOf(ours.get(), bare.get()) + differencesOf(ours.get(), bare.get());
        out() << family.id << (differences.isEmpty() ? ": both the same" : ": DIFFERENT")
              << Qt::endl;
        for (const QString &line : differences)
            out() << "  " << line.left(1000) << Qt::endl;
        same = same && differences.isEmpty();
    }
    return same;
}

// Keeps freed memory, so that no round waits for the system to provide memory.
void keepMemory()
{
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 1024 * 1024 * 1024);
}

void list()
{
    for (const Family &family : families())
        out() << family.id << Qt::endl;
}

void about()
{
    out() << "qt " << qVersion() << "\ncompiler " << RY_COMPILER << Qt::endl;
}

void addOptions(QCommandLineParser *parser)
{
    const auto add = [parser](const char *name, const char *description, const char *value = "",
                              const char *usual = "") {
        parser->addOption({QString::fromLatin1(name), QString::fromLatin1(description),
                           QString::fromLatin1(value), QString::fromLatin1(usual)});
    };
    add("check", "Compare the results of both sides; measure nothing.");
    add("list", "Print the names of the operations.");
    add("about", "Print the versions of Qt and compiler.");
    add("count", "Run one operation of the library once, for callgrind.", "operation");
    add("only", "Measure the lines of one operation, no curves.", "operation");
    add("bare", "Compare bare Qt with itself, to see how exact the ratios are.");
    add("row", "Measure one line and print it as JSON.", "number");
    add("curve", "Measure one point of a curve and print it as JSON.", "number");
    add("number", "The place of the point on the curve.", "number");
    add("seconds", "Seconds for each line; 3 if not given.", "seconds", "3");
    add("json", "Write all figures to a file.", "file");
}

bool measureAll(const QString &seconds, const QString &only, bool bareOnly, const QString &file)
{
    QJsonObject figures{{QStringLiteral("qt"), QLatin1String(qVersion())},
                        {QStringLiteral("compiler"), QStringLiteral(RY_COMPILER)},
                        {QStringLiteral("rows"), measureRows(seconds, only, bareOnly)}};
    if (only.isEmpty() && !bareOnly) {
        figures.insert(QStringLiteral("memory"), memoryRows());
        figures.insert(QStringLiteral("curves"),
                       measureCurves(QString::number(seconds.toDouble() / 5)));
    }
    if (file.isEmpty() || write(file, figures))
        return true;
    std::fputs("The file cannot be written.\n", stderr);
    return false;
}

bool doWhatIsAsked(const QCommandLineParser &parser)
{
    const auto isSet = [&](const char *name) { return parser.isSet(QLatin1String(name)); };
    const auto value = [&](const char *name) { return parser.value(QLatin1String(name)); };
    const double seconds = value("seconds").toDouble();
    if (isSet("check"))
        return check();
    if (isSet("count"))
        return countOnce(value("count"));
    if (isSet("list"))
        list();
    else if (isSet("about"))
        about();
    else if (isSet("row"))
        print(
            QJsonDocument(measureRow(rows().value(value("row").toInt()), seconds, isSet("bare"))));
    else if (isSet("curve"))
        print(QJsonDocument(measurePoint(curves().value(value("curve").toInt()),
                                         value("number").toInt(), seconds)));
    else
        return measureAll(value("seconds"), value("only"), isSet("bare"), value("json"));
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    keepMemory();
    // The same on every desktop.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_STYLE_OVERRIDE", "fusion");
    qInstallMessageHandler(&printMessage);
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Compares the library with bare Qt code that does the same."));
    parser.addHelpOption();
    addOptions(&parser);
    parser.process(application);
    return doWhatIsAsked(parser) ? 0 : 1;
}

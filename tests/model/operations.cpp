// SPDX-License-Identifier: MIT

#include "isolatedrun.h"
#include "sequencerange.h"
#include "shrinker.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <ctime>

namespace {

void print(const std::string &text)
{
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
}

// Shows what goes wrong in the shortest script that still does it; true if nothing does.
bool explain(const Script &script)
{
    const QString result = IsolatedRun::run(script);
    if (result.isNull())
        return true;
    print("FAILED: " + result.toStdString() + "\n");
    const auto fails = [](const Script &candidate) {
        return !IsolatedRun::run(candidate).isNull();
    };
    const Script shortest = Shrinker(fails).shrink(script);
    print("The shortest script that fails, for --replay:\n" + textOf(shortest));
    print("# " + IsolatedRun::run(shortest).toStdString() + "\n");
    return false;
}

int replay(const QString &file)
{
    Script script;
    if (!readScript(file.toStdString(), script)) {
        print("cannot read the steps of " + file.toStdString() + "\n");
        return 2;
    }
    const QString result = IsolatedRun::run(script);
    print(result.isNull() ? std::string("passed\n") : "FAILED: " + result.toStdString() + "\n");
    return result.isNull() ? 0 : 1;
}

int runRange(std::uint64_t firstSeed, std::uint64_t count, int steps, bool shrink)
{
    SequenceRange range(firstSeed, count, steps);
    const std::time_t start = std::time(nullptr);
    if (range.run()) {
        print("passed: " + std::to_string(count) + " sequences of " + std::to_string(steps)
              + " steps from seed " + std::to_string(firstSeed) + " in "
              + std::to_string(std::time(nullptr) - start) + " s\n");
        return 0;
    }
    const std::uint64_t seed = range.failedSeed();
    print("FAILED: --seed " + std::to_string(seed) + " --steps " + std::to_string(steps) + " after "
          + std::to_string(seed - firstSeed) + " sequences\n");
    if (shrink && explain(SequenceRange::scriptOf(seed, steps)))
        print("It fails only after the seeds from " + std::to_string(firstSeed) + " on.\n");
    return 1;
}

void addOptions(QCommandLineParser &parser)
{
    const QString number = "number";
    parser.addHelpOption();
    parser.addOptions({
        {"sequences", "How many scripts.", number, "500"},
        {"steps", "Steps of each.", number, "200"},
        {"first-seed", "Seed of the first.", number, "1"},
        {"seed", "Run this one only.", number},
        {"replay", "Run the steps of a file.", "file"},
        {"print", "Print the steps of this seed.", number},
        {"no-shrink", "Only say which seed fails."},
    });
}

int run(const QCommandLineParser &parser)
{
    const auto number = [&parser](const char *name) { return parser.value(name).toULongLong(); };
    const int steps = static_cast<int>(number("steps"));
    const bool shrink = !parser.isSet("no-shrink");
    if (parser.isSet("replay"))
        return replay(parser.value("replay"));
    if (parser.isSet("print"))
        return print(textOf(SequenceRange::scriptOf(number("print"), steps))), 0;
    if (parser.isSet("seed"))
        return runRange(number("seed"), 1, steps, shrink);
    return runRange(number("first-seed"), number("sequences"), steps, shrink);
}

} // namespace

int main(int argc, char **argv)
{
    // The same everywhere, and without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_STYLE_OVERRIDE", "fusion");
    qputenv("LC_ALL", "C.UTF-8");
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    return run(parser);
}

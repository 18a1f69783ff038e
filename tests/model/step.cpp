// SPDX-License-Identifier: MIT

#include "step.h"

#include <fstream>
#include <sstream>

namespace {

const char *const Names[Step::KindCount] = {
    "main-window",
    "new-action",
    "recreate-action",
    "name-action",
    "text-action",
    "new-toolbar",
    "drop-toolbar",
    "name-toolbar",
    "title-toolbar",
    "place",
    "take-off",
    "scatter",
    "add-action",
    "remove-action",
    "add-category",
    "add-default",
    "remove-default",
    "create",
    "delete",
    "set",
    "set-two",
    "reset",
    "reset-all",
    "save",
    "restore",
    "restore-made",
    "find",
    "open",
    "destroy",
    "hide",
    "close",
    "tab",
    "button",
    "row",
    "row-twice",
    "entry",
    "entry-twice",
    "item",
    "item-twice",
    "key",
    "type",
    "return",
    "escape",
    "ok",
    "apply",
    "cancel",
    "defaults",
    "minimize",
    "idle",
};

} // namespace

int Step::number(std::size_t place) const
{
    return place < numbers.size() ? numbers[place] : 0;
}

std::vector<int> Step::from(std::size_t place) const
{
    if (place >= numbers.size())
        return {};
    return {numbers.begin() + static_cast<std::ptrdiff_t>(place), numbers.end()};
}

std::string Step::text() const
{
    std::string line = Names[kind];
    for (int number : numbers)
        line += ' ' + std::to_string(number);
    return line;
}

Step Step::of(const std::string &line)
{
    std::istringstream words(line);
    std::string name;
    words >> name;
    Step step{KindCount, {}};
    for (int kind = 0; kind < KindCount; ++kind) {
        if (name == Names[kind])
            step.kind = static_cast<Kind>(kind);
    }
    for (int number = 0; words >> number;)
        step.numbers.push_back(number);
    return step;
}

std::string textOf(const Script &script)
{
    std::string text;
    for (const Step &step : script)
        text += step.text() + '\n';
    return text;
}

bool readScript(const std::string &file, Script &script)
{
    std::ifstream stream(file);
    bool good = stream.is_open();
    for (std::string line; std::getline(stream, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        script.push_back(Step::of(line));
        good = good && script.back().kind != Step::KindCount;
    }
    return good;
}

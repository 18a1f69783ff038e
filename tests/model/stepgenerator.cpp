// SPDX-License-Identifier: MIT

#include "stepgenerator.h"

namespace {

// The last of up to nine objects, modulo one more than there are.
const int Last = 2519;
const int RemoveButton = 1;
const int RenameButton = 2;

using Weights = std::vector<std::pair<Step::Kind, unsigned>>;

const Weights HostWeights = {
    {Step::MainWindow, 2},  {Step::NewAction, 2},     {Step::RecreateAction, 3},
    {Step::NameAction, 3},  {Step::TextAction, 3},    {Step::NewToolBar, 3},
    {Step::DropToolBar, 3}, {Step::NameToolBar, 4},   {Step::TitleToolBar, 4},
    {Step::Place, 4},       {Step::TakeOff, 4},       {Step::Scatter, 1},
    {Step::AddAction, 8},   {Step::RemoveAction, 5},  {Step::AddCategory, 3},
    {Step::AddDefault, 5},  {Step::RemoveDefault, 4}, {Step::Create, 5},
    {Step::Delete, 4},      {Step::Set, 16},          {Step::SetTwo, 3},
    {Step::Reset, 4},       {Step::ResetAll, 3},      {Step::Save, 5},
    {Step::Restore, 7},     {Step::RestoreMade, 4},   {Step::Find, 4},
};

// What makes the manager differ from what an open editor was filled with.
const Weights OpenHostWeights = {
    {Step::MainWindow, 3},  {Step::NewAction, 1},    {Step::NameAction, 1},
    {Step::TextAction, 4},  {Step::NewToolBar, 3},   {Step::DropToolBar, 2},
    {Step::NameToolBar, 3}, {Step::TitleToolBar, 5}, {Step::Place, 3},
    {Step::TakeOff, 3},     {Step::AddAction, 4},    {Step::RemoveAction, 5},
    {Step::AddCategory, 1}, {Step::AddDefault, 5},   {Step::RemoveDefault, 9},
    {Step::Create, 3},      {Step::Delete, 2},       {Step::Set, 6},
    {Step::Reset, 2},       {Step::ResetAll, 1},     {Step::Save, 2},
    {Step::Restore, 4},     {Step::RestoreMade, 3},  {Step::Find, 1},
};

const Weights DialogWeights = {
    {Step::Destroy, 1},    {Step::Hide, 1},   {Step::Close, 1},      {Step::Tab, 3},
    {Step::Button, 40},    {Step::Row, 14},   {Step::RowTwice, 3},   {Step::Entry, 10},
    {Step::EntryTwice, 4}, {Step::Item, 12},  {Step::ItemTwice, 12}, {Step::Key, 8},
    {Step::Type, 9},       {Step::Return, 7}, {Step::Escape, 2},     {Step::Ok, 2},
    {Step::Apply, 6},      {Step::Cancel, 1}, {Step::Defaults, 3},   {Step::Minimize, 1},
    {Step::Idle, 1},       {Step::Open, 3},
};

} // namespace

StepGenerator::StepGenerator(std::uint64_t seed, Kind kind)
    : m_state(seed * 2 + kind)
    , m_kind(kind)
{
}

Script StepGenerator::script(int steps)
{
    m_script.clear();
    addHost();
    while (static_cast<int>(m_script.size()) < steps) {
        const bool ofHost = m_kind == ManagerOnly || below(100) < (m_open ? 12 : 50);
        if (ofHost)
            addHostStep();
        else
            addDialogStep();
    }
    m_script.resize(static_cast<std::size_t>(steps));
    return m_script;
}

// SplitMix64.
unsigned StepGenerator::below(unsigned bound)
{
    std::uint64_t mixed = m_state += 0x9E3779B97F4A7C15u;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return static_cast<unsigned>((mixed ^ (mixed >> 31)) >> 32) % bound;
}

std::vector<int> StepGenerator::anyNumbers(unsigned most)
{
    std::vector<int> numbers(below(most + 1));
    for (int &number : numbers)
        number = any();
    return numbers;
}

Step::Kind StepGenerator::pick(const Weights &weights)
{
    unsigned sum = 0;
    for (const auto &weight : weights)
        sum += weight.second;
    unsigned place = below(sum);
    for (const auto &weight : weights) {
        if (place < weight.second)
            return weight.first;
        place -= weight.second;
    }
    return weights.back().first;
}

void StepGenerator::add(Step::Kind kind)
{
    addWith(kind, {any(), any(), any()});
}

void StepGenerator::addWith(Step::Kind kind, std::vector<int> numbers)
{
    m_script.push_back({kind, std::move(numbers)});
}

void StepGenerator::addHost()
{
    addWith(Step::Scatter, {any()});
    addWith(Step::MainWindow, {below(10) ? 1 : 0});
    for (unsigned left = 3 + below(5); left > 0; --left)
        addWith(Step::NewAction, {});
    for (unsigned left = 3 + below(4); left > 0; --left)
        add(Step::AddAction);
    for (unsigned left = 1 + below(4); left > 0; --left) {
        std::vector<int> numbers = anyNumbers(5);
        numbers.insert(numbers.begin(), {any(), any()});
        addWith(Step::NewToolBar, numbers);
        add(Step::AddDefault);
    }
}

void StepGenerator::addHostStep()
{
    const Step::Kind kind = pick(m_open ? OpenHostWeights : HostWeights);
    std::vector<int> numbers{any(), any(), any()};
    const bool takesMany = kind == Step::Set || kind == Step::SetTwo || kind == Step::NewToolBar;
    const std::vector<int> more = anyNumbers(kind == Step::RestoreMade ? 25 : takesMany ? 5 : 0);
    numbers.insert(numbers.end(), more.begin(), more.end());
    if (kind == Step::Set && !below(3))
        numbers.resize(2 + below(2));
    // Usually the version that is expected, and no damage.
    if (kind == Step::Restore && below(4))
        numbers = {any(), 0, 0};
    if (kind == Step::RestoreMade && below(4))
        numbers[0] = 0;
    addWith(kind, numbers);
    if (kind == Step::NewToolBar && below(2))
        addWith(Step::AddDefault, {Last, any()});
}

// The address of a toolbar that is gone, and of its record, is soon given to others.
void StepGenerator::addReuseOfAddresses()
{
    addWith(Step::Button, {RemoveButton});
    addWith(Step::Apply, {});
    addWith(Step::NewToolBar, {any(), any(), any()});
    addWith(Step::AddDefault, {Last, any()});
    if (below(2))
        addWith(Step::Button, {0});
    addWith(Step::Defaults, {});
}

void StepGenerator::addRename()
{
    addWith(Step::Row, {any()});
    addWith(Step::Button, {RenameButton});
    addWith(Step::Type, {any()});
    if (below(3))
        addWith(Step::Return, {});
    if (below(2))
        addWith(Step::Apply, {});
}

void StepGenerator::addDialogStep()
{
    const Step::Kind kind = m_open ? pick(DialogWeights) : Step::Open;
    const unsigned chance = below(100);
    if (m_open && chance < 4)
        return chance == 0 ? addReuseOfAddresses() : addRename();
    add(kind);
    // A guess that is right most of the time.
    switch (kind) {
    case Step::Open:
        m_open = true;
        break;
    case Step::Destroy:
    case Step::Hide:
    case Step::Close:
    case Step::Ok:
    case Step::Cancel:
        m_open = false;
        break;
    default:
        break;
    }
}

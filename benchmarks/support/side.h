// SPDX-License-Identifier: MIT

#ifndef SIDE_H
#define SIDE_H

#include <QStringList>

#include <memory>

/*
 * The size of the measured host.
 */
struct Size
{
    // Registered with the manager.
    int actions = 0;
    int toolBars = 0;
    // Of each toolbar; every tenth is a separator.
    int entries = 0;
    // The number of actions on toolbars; 0 for all of them.
    int placed = 0;
};

/*
 * One side of a comparison: the library, or bare Qt doing the same.
 *
 * A round calls prepare(), run() and finish(); only run() is timed.
 */
class Side
{
public:
    Side() = default;
    virtual ~Side();

    virtual void prepare();
    virtual void run() = 0;
    virtual void finish();

    // What a user or host sees between run() and finish(), to compare both sides.
    virtual QStringList result() = 0;

private:
    Q_DISABLE_COPY(Side)
};

using MakeSide = std::unique_ptr<Side> (*)(const Size &size);

template <typename T> std::unique_ptr<Side> makeSide(const Size &size)
{
    return std::make_unique<T>(size);
}

/*
 * Lets Qt do all its deferred work: layouts, painting, deletion.
 */
void settle();

/*
 * The next large allocation sorts the freed memory, which takes milliseconds. This function makes
 * such an allocation, so that no side has to.
 */
void tidyHeap();

/*
 * The same until the window is laid out and painted.
 */
template <typename Operation> class UntilPainted : public Operation
{
public:
    using Operation::Operation;

    void run() override
    {
        Operation::run();
        settle();
    }
};

#endif // SIDE_H

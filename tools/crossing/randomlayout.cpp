// SPDX-License-Identifier: MIT

#include "randomlayout.h"

#include <QStringList>

#include <random>

namespace {

class Random
{
public:
    explicit Random(unsigned seed)
        : m_generator(seed)
    {
    }

    // From 0 to below the end; not with a distribution of the standard library, which may give
    // other numbers elsewhere.
    int below(int end) { return static_cast<int>(m_generator() % static_cast<unsigned>(end)); }

    QString one(const QStringList &texts) { return texts.at(below(texts.size())); }

private:
    std::mt19937 m_generator;
};

// Letters of several scripts, pairs of surrogates, and what means something elsewhere.
QString word(Random &random)
{
    static const QStringList pieces{"a",   "Z",  "ß",  "é",    "e\u0301", "щ", "א",
                                    "ع",   "漢", "한", "😀",    "𝄞",       " ", "\t",
                                    "\\n", "%1", "&",  "\\\"", "\\\\",    "|", "_Custom_Toolbar_1"};
    QString text;
    for (int count = random.below(8); count > 0; --count)
        text += random.one(pieces);
    return text;
}

QString quoted(const QString &text)
{
    return '"' + text + '"';
}

// A toolbar has an action once.
QString content(Random &random, QStringList actions)
{
    QStringList entries;
    for (int count = random.below(12); count > 0 && !actions.isEmpty(); --count)
        entries << (random.below(4) == 0 ? "separator"
                                         : actions.takeAt(random.below(actions.size())));
    return entries.isEmpty() ? "nothing" : entries.join(", ");
}

QStringList actionNames(Random &random)
{
    QStringList names;
    for (int i = 1 + random.below(20); i > 0; --i) {
        const QString name = quoted(word(random) + QString::number(i));
        names << (random.below(8) == 0 ? "the text " + name : name);
    }
    return names;
}

} // namespace

QString randomLayout(unsigned seed)
{
    Random random(seed);
    QStringList lines{QString("version %1").arg(random.below(1000) - 500)};
    const QStringList actions = actionNames(random);
    for (const char *kind : {"default", "custom"}) {
        for (int i = random.below(6); i > 0; --i) {
            lines << QString("%1 toolbar ").arg(kind)
                    + quoted(word(random) + kind + QString::number(i)) + ", titled "
                    + quoted(word(random)) + ": " + content(random, actions);
        }
    }
    return lines.join('\n');
}

QByteArray damaged(QByteArray bytes, unsigned seed)
{
    Random random(seed);
    for (int count = 1 + random.below(3); count > 0 && !bytes.isEmpty(); --count) {
        const int position = random.below(bytes.size());
        switch (random.below(5)) {
        case 0:
            bytes[position] = static_cast<char>(random.below(256));
            break;
        case 1:
            bytes.truncate(position);
            break;
        case 2:
            bytes.insert(position, static_cast<char>(random.below(256)));
            break;
        case 3:
            bytes.insert(position, bytes.mid(random.below(bytes.size()), 40));
            break;
        default:
            bytes.replace(position, 4, QByteArray::fromHex("7fffffff"));
        }
    }
    return bytes;
}

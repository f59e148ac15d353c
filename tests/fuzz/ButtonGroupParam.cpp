// The button group's text: the numbers of the buttons to show, in order, joined by commas.
#include "fuzz/FuzzTarget.h"

#include <WQ/CDropDownButtonGroup.h>

#include <climits>

namespace {

constexpr int kIds[] = {600, 601, 602, 603, 0, -7, INT_MAX, INT_MIN};
constexpr int kChecked = 602;
constexpr int kWidth = 200; // some buttons fit, the others go to the drop-down

/// A shown group, so that every text lays it out.
struct Host
{
    Host()
        : group(new WQ::CDropDownButtonGroup(Qt::Horizontal, &window))
    {
        for (const int id : kIds) {
            auto* const button = new WQ::CPushButton(WQ::CButtonColor(), id, group);
            button->setText(QStringLiteral("按钮%1").arg(id));
            group->addButton(button, WQ::AnchorStart);
        }
        group->setCheckedByID(kChecked);
        group->resize(kWidth, 28);
        window.resize(kWidth, 28);
        window.show();
    }

    QWidget window;
    WQ::CDropDownButtonGroup* const group; ///< the window's child
};

WQ::CDropDownButtonGroup& group()
{
    static Host* const theHost = new Host;
    return *theHost->group;
}

QList<int> ownIds()
{
    return QList<int>(std::begin(kIds), std::end(kIds));
}

QString joined(const QList<int>& ids)
{
    QStringList texts;
    for (const int id : ids)
        texts.append(QString::number(id));
    return texts.join(QLatin1Char(','));
}

/// The group's own buttons that a text names, each once.
QList<int> namedIn(const QString& text)
{
    QList<int> named;
    for (const QString& piece : text.split(QLatin1Char(','))) {
        bool isNumber = false;
        const int id = piece.toInt(&isNumber);
        if (isNumber && ownIds().contains(id) && !named.contains(id))
            named.append(id);
    }
    return named;
}

void checkStrip(const QList<int>& shown)
{
    int end = 0;
    for (const WQ::CPushButton* button : group().findChildren<WQ::CPushButton*>()) {
        if (!button->isVisible())
            continue;
        fuzz::require(shown.contains(button->id()), "only a listed button stands in the strip");
        fuzz::require(group().rect().contains(button->geometry()), "a button stands inside the strip");
        end += button->width();
    }
    fuzz::require(end <= kWidth, "buttons do not overlap");
}

void check(const QString& text)
{
    const QList<int> orderBefore = group().getButtonList();
    const QString before = group().getParam();
    group().setParam(text);
    const QList<int> named = namedIn(text);
    const QString expected = named.isEmpty() ? before : joined(named);
    fuzz::require(group().getParam() == expected, "the text is the listed buttons, in the order of the list");
    QList<int> all = group().getButtonList();
    fuzz::require(!named.isEmpty() || all == orderBefore, "a text without own buttons changes nothing");
    fuzz::require(group().selectedButton() == kChecked, "the choice stays");
    group().setParam(group().getParam());
    fuzz::require(group().getButtonList() == all && group().getParam() == expected, "its own text changes nothing");
    std::sort(all.begin(), all.end());
    QList<int> own = ownIds();
    std::sort(own.begin(), own.end());
    fuzz::require(all == own, "no button is lost or doubled");
    checkStrip(namedIn(expected));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::startApplication();
    const QString text = fuzz::textOf(data, size);
    group().setParam(joined(ownIds()));
    if (size > fuzz::kLongestChecked)
        group().setParam(text);
    else
        check(text);
    group().resetLayout();
    return 0;
}

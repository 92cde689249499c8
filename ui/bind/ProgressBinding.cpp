#include "ui/bind/ProgressBinding.h"

#include <algorithm>
#include <iterator>

#include <QLocale>

#include "ui/Texts.h"
#include "ui/bind/FirstState.h"

namespace ui {

namespace {

// Decimal units, as file managers count; from `from` bytes on.
struct Unit {
    std::uint64_t from;
    double bytes;
    int digits;
    ports::TextKey key;
};

constexpr Unit kUnits[] = {
    {1'000'000'000, 1e9, 2, "%@ GB of %@ GB"},
    {10'000'000, 1e6, 0, "%@ MB of %@ MB"},
    {1'000'000, 1e6, 1, "%@ MB of %@ MB"},
    {0, 1e3, 0, "%@ KB of %@ KB"},
};

} // namespace

ProgressBinding::ProgressBinding(controls::Progress& progress, Needs needs)
    : Binding(progress), m_needs(needs) {
    FirstState(needs.bar).giveTo(progress);
    mirror(progress);
}

QString ProgressBinding::captionFor(const controls::Progress::Amount& amount,
                                    const ports::LocalizedTexts& texts) {
    if (amount.total == 0)
        return {};
    const Unit& unit = *std::ranges::find_if(
        kUnits, [&](const Unit& candidate) { return amount.total >= candidate.from; });
    const QLocale locale;
    const auto inUnits = [&](std::uint64_t bytes) {
        return locale.toString(static_cast<double>(bytes) / unit.bytes, 'f', unit.digits);
    };
    return localized(texts, unit.key,
                     {inUnits(std::min(amount.done, amount.total)), inUnits(amount.total)});
}

void ProgressBinding::mirror(const controls::Progress& progress) {
    const auto& amount = progress.amount();
    std::optional<double> fraction;
    if (amount.total > 0)
        fraction = static_cast<double>(amount.done) / static_cast<double>(amount.total);
    m_needs.bar.setFraction(fraction);
    m_needs.bar.setRunning(progress.isRunning());
    m_needs.bar.setVisible(!progress.isHidden());
    if (m_needs.caption) {
        const bool counts = progress.isRunning() && !progress.isHidden();
        m_needs.caption->setText(counts ? captionFor(amount, m_needs.texts) : QString());
        // empty it keeps its place, so that nothing moves when counting begins
        m_needs.caption->setVisible(!progress.isHidden());
    }
}

} // namespace ui

#include "Quillmere/reports/SelectedLedgerDay.h"

#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/reports/LedgerDay.h"

#include <utility>

namespace quillmere {

SelectedLedgerDay::SelectedLedgerDay(StoreSession& session, platform::Instant date, QObject* parent)
    : QObject(parent), session_(session), date_(date), changes_(session) {
    connect(&session, &StoreSession::adjustmentsChanged, this, &SelectedLedgerDay::update);
    connect(&session.time(), &TimeFollower::changed, this, &SelectedLedgerDay::update);
    update();
}

void SelectedLedgerDay::update() {
    const platform::Calendar calendar = session_.time().current();
    LedgerDay day = LedgerDay::of(session_.adjustments().rows(), date_, calendar);
    title_ = QString::fromStdString(
        platform::DateText(calendar).text(date_, platform::DateStyle::fullWeekdayDay));
    figures_ = LedgerFigures::of(day.totals.addedSeconds, day.totals.subtractedSeconds,
                                 day.totals.netSeconds());
    changes_.setRows(std::move(day.listed), calendar);
    emit changed();
}

} // namespace quillmere

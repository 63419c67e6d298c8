#include "mainview/layersview.h"

#include "session/refresh.h"
#include "session/tidecurve.h"

namespace tarvane {
namespace {

constexpr Colour curveback = 0xFFFFFF;
constexpr Colour layersback = 0xC0C0C0;

/// A day of the year that has run past its year becomes the first day of the next.
void wrapyear(DateOnShow& onshow) {
    const int past = isleapyear(static_cast<int>(onshow.tideyear)) ? 367 : 366;
    if (static_cast<int>(onshow.tidedayofyear) != past) return;
    onshow.tideyear += 1;
    onshow.tidedayofyear = 1;
}

}  // namespace

void togglelayers(MainContext& context) {
    Session& session = context.session;
    session.layersmode = session.layersmode == 0 ? 1 : 0;
    context.surfaces.picture.setbackcolour(session.layersmode == 1 ? layersback : curveback);
    session.view.monthvisible = false;
    clearmonthcells(session.month);
    DateOnShow& onshow = session.onshow;
    wrapyear(onshow);
    const int days = static_cast<int>(onshow.tidedayofyear) - 1;
    const Date date = makedate(static_cast<int>(onshow.tideyear), 1, 1) + std::chrono::days{days};
    setdateonshow(onshow, date);
    session.view.tidedatebox = datelineinorder(context, date);
    session.daytable.daystide1.clear();
    redrawday(context);
}

void ticklayers(MainContext& context, const LayerChoice& ticked) {
    context.session.layers = ticked;
    drawtidecurve(context.session, context.surfaces);
}

std::string datelineinorder(const MainContext& context, Date date) {
    const Locale& locale = context.services.locale;
    return "Date   : " + DateCaption(locale, context.session.conventions, date) + " (" +
           formatdate(locale, date, "dddd") + ")";
}

}  // namespace tarvane

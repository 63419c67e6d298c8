#include "platform/qt/keptnote.h"

#include "platform/qt/screentext.h"

namespace tarvane {

KeptNote::KeptNote() {
    setObjectName("lblKept");
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setVisible(false);
}

void KeptNote::tell(const std::string& text) {
    if (text.empty()) return;
    // A path is broken at its folders.
    setText(screentext(text).replace('/', QStringLiteral("/\u200B")));
    setToolTip(screentext(text));
    setVisible(true);
}

}  // namespace tarvane

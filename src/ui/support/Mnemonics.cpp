#include "ui/support/Mnemonics.h"

#include "ui/support/UIText.h"

QString Mnemonics::mark(const QString& title) {
    const auto escaped = [](const QString& part) { return uiTitle(part.toStdString()); };
    const qsizetype place = placeIn(title);
    if (place < 0)
        return escaped(title);
    taken.insert(title[place].toCaseFolded());
    return escaped(title.left(place)) + '&' + escaped(title.mid(place));
}

qsizetype Mnemonics::placeIn(const QString& title) const {
    const auto isFree = [&](qsizetype i) {
        return title[i].isLetterOrNumber() && !taken.contains(title[i].toCaseFolded());
    };
    for (qsizetype i = 0; i < title.size(); ++i)
        if (isFree(i) && (i == 0 || !title[i - 1].isLetterOrNumber()))
            return i;
    for (qsizetype i = 0; i < title.size(); ++i)
        if (isFree(i))
            return i;
    return -1;
}

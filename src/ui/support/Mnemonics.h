#pragma once
#include <QSet>
#include <QString>

/// Gives each title of one menu a letter of its own that is underlined and chooses it from the keyboard: the
/// first one that no title before it has, if possible at the begin of a word. A title of letters that are all
/// taken has none.
class Mnemonics {
public:
    /// @p title as menus take it.
    QString mark(const QString& title);

private:
    qsizetype placeIn(const QString& title) const;

    QSet<QChar> taken;
};

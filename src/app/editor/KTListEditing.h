#pragma once
#include <string>
#include <vector>

/// The arithmetic of the list editor, which edits the lists of several photos together: what all lists have
/// in common is shown, and each change of that is carried over to every list, whose other elements stay where
/// they are. Pure functions of plain values.
class KTListEditing {
public:
    using List = std::vector<std::string>;

    /// The elements of @p first that all @p others hold, in the order of @p first.
    static List commonValues(List first, const std::vector<List>& others);
    /// Takes from @p values what @p list does not hold.
    static void keepCommonValues(List& values, const List& list);

    static bool holds(const List& list, const std::string& value);
    /// @p list with @p value at its end, unless it holds it already.
    static List listByAdding(List list, const std::string& value);
    /// @p list with @p value where it holds @p old; as it is when it holds @p value already, or not @p old.
    static List listByReplacing(List list, const std::string& old, const std::string& value);
    /// @p list without any of @p values, as often as it holds them.
    static List listByRemoving(List list, const List& values);

    /// @p values with those at @p rows (ascending, each once) taken out and put, in their order, before what
    /// stood at @p toIndex. Rows and places past the end are left out or taken for the end.
    static List valuesByMoving(const List& values, const std::vector<std::size_t>& rows, std::size_t toIndex);
    /// @p list with the elements that it shares with @p values in the order of @p values, in the places that
    /// they had among them.
    static List listByOrdering(List list, const List& values);
};

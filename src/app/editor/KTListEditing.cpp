#include "app/editor/KTListEditing.h"

#include <algorithm>

using List = KTListEditing::List;

bool KTListEditing::holds(const List& list, const std::string& value) {
    return std::ranges::find(list, value) != list.end();
}

void KTListEditing::keepCommonValues(List& values, const List& list) {
    std::erase_if(values, [&](const std::string& value) { return !holds(list, value); });
}

List KTListEditing::commonValues(List first, const std::vector<List>& others) {
    for (const List& other : others)
        keepCommonValues(first, other);
    return first;
}

List KTListEditing::listByAdding(List list, const std::string& value) {
    if (!holds(list, value))
        list.push_back(value);
    return list;
}

List KTListEditing::listByReplacing(List list, const std::string& old, const std::string& value) {
    if (!holds(list, value))
        std::ranges::replace(list, old, value);
    return list;
}

List KTListEditing::listByRemoving(List list, const List& values) {
    std::erase_if(list, [&](const std::string& element) { return holds(values, element); });
    return list;
}

List KTListEditing::valuesByMoving(const List& values, const std::vector<std::size_t>& rows,
                                   std::size_t toIndex) {
    List moved, before, after;
    for (std::size_t i = 0; i < values.size(); ++i)
        (std::ranges::find(rows, i) != rows.end() ? moved
         : i < toIndex                            ? before
                                                  : after)
            .push_back(values[i]);
    before.insert(before.end(), moved.begin(), moved.end());
    before.insert(before.end(), after.begin(), after.end());
    return before;
}

/// An element that stands in a list twice has two places, of which each takes part once.
List KTListEditing::listByOrdering(List list, const List& values) {
    std::vector<std::size_t> places;
    List ordered;
    for (const std::string& value : values) {
        std::size_t place = 0;
        while (place < list.size() &&
               (list[place] != value || std::ranges::find(places, place) != places.end()))
            ++place;
        if (place == list.size())
            continue;
        places.push_back(place);
        ordered.push_back(value);
    }
    std::ranges::sort(places);
    for (std::size_t i = 0; i < places.size(); ++i)
        list[places[i]] = ordered[i];
    return list;
}

#include "app/editor/KTListEditing.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>

namespace {

using List = KTListEditing::List;
using Lists = std::vector<List>;

/// A few letters, so that lists have much in common; each once, as in the fields that people edit.
Lists distinctLists() {
    const auto list = rc::gen::unique<List>(rc::gen::element<std::string>("a", "b", "c", "d", "e", "f"));
    return *rc::gen::resize(6, rc::gen::nonEmpty(rc::gen::container<Lists>(list)));
}

List commonOf(const Lists& lists) {
    return KTListEditing::commonValues(lists.front(), {lists.begin() + 1, lists.end()});
}

bool isShared(const std::string& value, const Lists& lists) {
    return std::ranges::all_of(lists, [&](const List& list) { return std::ranges::count(list, value) > 0; });
}

List without(List list, const List& values) {
    std::erase_if(list, [&](const std::string& value) { return std::ranges::count(values, value) > 0; });
    return list;
}

} // namespace

TEST(ListEditing, Examples) {
    const List first{"a", "b", "c"}, second{"c", "a"};
    EXPECT_EQ(KTListEditing::commonValues(first, {second}), (List{"a", "c"}));
    EXPECT_EQ(KTListEditing::commonValues({"a"}, {{"b"}, {"b"}}), List{});
    EXPECT_EQ(KTListEditing::listByAdding(second, "d"), (List{"c", "a", "d"}));
    EXPECT_EQ(KTListEditing::listByAdding(second, "a"), second);
    EXPECT_EQ(KTListEditing::listByReplacing(first, "a", "x"), (List{"x", "b", "c"}));
    EXPECT_EQ(KTListEditing::listByReplacing({"c", "a", "x"}, "a", "x"), (List{"c", "a", "x"}));
    EXPECT_EQ(KTListEditing::listByRemoving({"c", "a", "c"}, {"c"}), List{"a"});
    const List moved = KTListEditing::valuesByMoving({"a", "c"}, {1}, 0);
    EXPECT_EQ(moved, (List{"c", "a"}));
    EXPECT_EQ(KTListEditing::listByOrdering(first, moved), (List{"c", "b", "a"}));
    EXPECT_EQ(KTListEditing::listByOrdering(second, moved), (List{"c", "a"}));
    EXPECT_EQ(KTListEditing::valuesByMoving({"a", "b", "c", "d"}, {0, 2}, 3), (List{"b", "a", "c", "d"}));
}

RC_GTEST_PROP(ListEditing, ShownIsWhatAllShare, ()) {
    const Lists lists = distinctLists();
    const List shown = commonOf(lists);
    for (const std::string& value : lists.front())
        RC_ASSERT((std::ranges::count(shown, value) == 1) == isShared(value, lists));
    RC_ASSERT(std::ranges::includes(
        lists.front(), shown, {}, // in the order of the first
        [&](const auto& value) { return std::ranges::find(lists.front(), value); },
        [&](const auto& value) { return std::ranges::find(lists.front(), value); }));
}

RC_GTEST_PROP(ListEditing, ChangesReachEveryListAndNothingElse, ()) {
    Lists lists = distinctLists();
    const List shown = commonOf(lists);
    const std::string typed = *rc::gen::element<std::string>("a", "c", "e", "new");
    RC_PRE(std::ranges::count(shown, typed) == 0);
    const bool isReplacement = !shown.empty() && *rc::gen::arbitrary<bool>();
    const std::string old = isReplacement ? *rc::gen::elementOf(shown) : "";
    for (List& list : lists) {
        const List before = list;
        list = isReplacement ? KTListEditing::listByReplacing(list, old, typed)
                             : KTListEditing::listByAdding(list, typed);
        RC_ASSERT(without(list, {typed, old}) == without(before, {typed, old}));
        const bool hadIt = std::ranges::count(before, typed) == 1;
        RC_ASSERT(list.size() == before.size() + (isReplacement || hadIt ? 0 : 1));
    }
    RC_ASSERT(std::ranges::count(commonOf(lists), typed) == 1);
    RC_ASSERT(!isReplacement || lists.size() > 1 || std::ranges::count(commonOf(lists), old) == 0);
}

RC_GTEST_PROP(ListEditing, AMoveOrdersWhatIsSharedAndKeepsThePlacesOfTheRest, ()) {
    const Lists lists = distinctLists();
    const List shown = commonOf(lists);
    RC_PRE(!shown.empty());
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < shown.size(); ++row)
        if (*rc::gen::arbitrary<bool>())
            rows.push_back(row);
    const auto to = *rc::gen::inRange<std::size_t>(0, shown.size() + 1);

    // The model: take the rows out from behind, then put them in before the mark.
    List expected = shown, block;
    auto place = to;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        block.insert(block.begin(), expected[*row]);
        expected.erase(expected.begin() + std::ptrdiff_t(*row));
        place -= *row < to ? 1 : 0;
    }
    expected.insert(expected.begin() + std::ptrdiff_t(place), block.begin(), block.end());

    const List moved = KTListEditing::valuesByMoving(shown, rows, to);
    RC_ASSERT(moved == expected);
    for (const List& list : lists) {
        const List ordered = KTListEditing::listByOrdering(list, moved);
        RC_ASSERT(ordered.size() == list.size());
        for (std::size_t i = 0; i < list.size(); ++i)
            RC_ASSERT(std::ranges::count(shown, list[i]) == 1 || ordered[i] == list[i]);
        List order = ordered;
        std::erase_if(order, [&](const std::string& value) { return std::ranges::count(shown, value) == 0; });
        RC_ASSERT(order == moved);
    }
}

RC_GTEST_PROP(ListEditing, NoMoveLosesAnElement, ()) {
    const auto letters = rc::gen::container<List>(rc::gen::element<std::string>("a", "b", "c"));
    const List list = *letters, values = *letters; // some several times
    auto ordered = KTListEditing::listByOrdering(list, values), before = list;
    std::ranges::sort(ordered);
    std::ranges::sort(before);
    RC_ASSERT(ordered == before);
}

// Sorting what is in order but for a few places, in about one pass.
#pragma once

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

// Not stable. Each item that breaks the ascending chain is set aside; the few
// that were are sorted and merged in again. Without order in the input it costs
// what std::sort costs.
template<class T, class TLess>
void SortNearlySorted(std::vector<T>& Items, TLess Less)
{
    if (std::is_sorted(Items.begin(), Items.end(), Less))
        return;
    std::vector<T> Chain;
    std::vector<T> Aside;
    Chain.reserve(Items.size());
    for (T& Item : Items) {
        if (!Chain.empty() && Less(Item, Chain.back())) {
            // One item that came too early breaks the chain for all that follow;
            // it is the one to go when the new item fits what precedes it.
            const bool LastCameEarly = Chain.size() < 2 || !Less(Item, Chain[Chain.size() - 2]);
            if (!LastCameEarly) {
                Aside.push_back(std::move(Item));
                continue;
            }
            Aside.push_back(std::move(Chain.back()));
            Chain.pop_back();
        }
        Chain.push_back(std::move(Item));
    }
    std::sort(Aside.begin(), Aside.end(), Less);
    Items.clear();
    std::merge(std::make_move_iterator(Chain.begin()), std::make_move_iterator(Chain.end()),
               std::make_move_iterator(Aside.begin()), std::make_move_iterator(Aside.end()),
               std::back_inserter(Items), Less);
}

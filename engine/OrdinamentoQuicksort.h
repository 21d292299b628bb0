#pragma once
// The list quicksort that the list sorter and the reduction share.
//
// It is kept exactly as users have always had it: rows with equal keys come
// out in an order that only this procedure defines, and the winning rows a
// user sorted yesterday must come out the same today. It is not std::sort's
// business to decide that order.

#include <cstdint>
#include <utility>
#include <vector>

namespace combi {

// Sorts elements lo..hi of `v` largest key first. `v` is 1-based: element 0
// is never read, and "the last index" is v.size() - 1. `chiave(e)` gives the
// key of an element (copied for the pivot); keys compare with > and <.
// `fermo()` is read after every exchange step; when it is true the segment
// being partitioned is left as it is and nothing more is sorted.
//
// The pivot is element (lo + hi) / 2 + 1, which for lo < hi always lies in
// lo+1..hi: the scans then stop inside the segment (the classic Wirth
// argument), so no bound check is needed. The two recursive calls of the
// original become a stack of pending segments: segments are disjoint, so the
// order in which they are finished does not change the result.
template <typename T, typename Chiave, typename Fermo>
void QuicksortDecrescente(std::vector<T>& v, int64_t lo, int64_t hi, Chiave chiave, Fermo fermo) {
    const int64_t ultimo = int64_t(v.size()) - 1;
    std::vector<std::pair<int64_t, int64_t>> segmenti{{lo, hi}};
    while (!segmenti.empty()) {
        auto [a, b] = segmenti.back();
        segmenti.pop_back();
        const int64_t p = (a + b) / 2 + 1;
        if (p < 2 || p > ultimo) continue;
        const auto pivot = chiave(v[size_t(p)]);
        int64_t i = a, j = b;
        do {
            while (chiave(v[size_t(i)]) > pivot) ++i;
            while (chiave(v[size_t(j)]) < pivot) --j;
            if (i <= j) {
                std::swap(v[size_t(i)], v[size_t(j)]);
                ++i;
                --j;
            }
            if (fermo()) return;
        } while (i <= j);
        // Pushed in reverse so that a..j is finished first, as the recursion did.
        if (i < b) segmenti.emplace_back(i, b);
        if (a < j) segmenti.emplace_back(a, j);
    }
}

}  // namespace combi

// The sort of config lists: the order of configs is not transitive, so the result depends on every step, and
// applications see it. Stays inside the range and terminates for any order.
#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <span>
#include <utility>

namespace egl {

// before(a, b) returns whether a comes before b. Positions are indices; a range is [first, last).
template <typename Record, typename Before>
class PartitionSort {
public:
    PartitionSort(std::span<Record> records, const Before &before) : m_records(records), m_before(before) {}

    void run() { sort(0, m_records.size()); }

private:
    static constexpr size_t insertionMax = 6;
    static constexpr size_t fivePlaceMin = 1000;
    static constexpr size_t finishLimit = 8;
    static constexpr size_t noLimit = std::numeric_limits<size_t>::max();

    bool comesBefore(size_t a, size_t b) const { return m_before(m_records[a], m_records[b]); }

    void swap(size_t a, size_t b) {
        std::swap(m_records[a], m_records[b]);
        ++m_swaps;
    }

    void sort(size_t first, size_t last) {
        while (last - first > insertionMax) {
            m_swaps = 0;
            const size_t pivot = arrangePivot(first, last);
            size_t upper = last - 1;
            if (!comesBefore(first, pivot)) {
                upper = lastBefore(first, last, pivot);
                if (upper == first) {
                    first = moveLaterToTop(first, last);
                    continue;
                }
                swap(first, upper);
            }
            const size_t split = partition(first, upper, pivot);
            if (m_swaps == 0) {
                const bool lowerDone = insert(first, split, finishLimit);
                const bool upperDone = insert(split + 1, last, finishLimit);
                if (lowerDone && upperDone) return;
                if (lowerDone) {
                    first = split + 1;
                    continue;
                }
                if (upperDone) {
                    last = split;
                    continue;
                }
            }
            // Recurses into the smaller side, so the depth is at most logarithmic.
            if (split - first < last - split) {
                sort(first, split);
                first = split + 1;
            } else {
                sort(split + 1, last);
                last = split;
            }
        }
        insert(first, last, noLimit);
    }

    // Sorts a few records and returns the position of the middle one.
    size_t arrangePivot(size_t first, size_t last) {
        const size_t middle = first + (last - first) / 2;
        if (last - first < fivePlaceMin) {
            sortThree(first, middle, last - 1);
        } else {
            const size_t delta = (last - first) / 4;
            sortFive({first, first + delta, middle, middle + delta, last - 1});
        }
        return middle;
    }

    void sortThree(size_t x, size_t y, size_t z) {
        if (!comesBefore(y, x)) {
            if (!comesBefore(z, y)) return;
            swap(y, z);
            if (comesBefore(y, x)) swap(x, y);
        } else if (comesBefore(z, y)) {
            swap(x, z);
        } else {
            swap(x, y);
            if (comesBefore(z, y)) swap(y, z);
        }
    }

    void sortFive(const std::array<size_t, 5> &places) {
        sortThree(places[0], places[1], places[2]);
        for (size_t next = 3; next < places.size(); ++next)
            for (size_t k = next; k > 0 && comesBefore(places[k], places[k - 1]); --k)
                swap(places[k], places[k - 1]);
    }

    // The highest position below the last whose record comes before the pivot; first when there is none.
    size_t lastBefore(size_t first, size_t last, size_t pivot) const {
        size_t j = last - 2;
        while (j > first && !comesBefore(j, pivot))
            --j;
        return j;
    }

    // For a range in which nothing comes before the pivot: moves the records that the first one comes before to the end
    // and returns where they start, last when there are none. The records below are not moved.
    size_t moveLaterToTop(size_t first, size_t last) {
        size_t i = first + 1;
        size_t j = last;
        for (;;) {
            while (i < j && !comesBefore(first, i))
                ++i;
            while (i < j && comesBefore(first, j - 1))
                --j;
            if (i == j) return i;
            swap(i++, --j);
        }
    }

    // The first record comes before the pivot, and none above upper is compared. Returns the position between them.
    size_t partition(size_t first, size_t upper, size_t pivot) {
        size_t i = first + 1;
        size_t j = upper;
        for (;;) {
            while (i < j && comesBefore(i, pivot))
                ++i;
            do
                --j;
            while (j > first && !comesBefore(j, pivot));
            if (i >= j) break;
            swap(i, j);
            if (pivot == i) pivot = j;
            ++i;
        }
        if (i != pivot && comesBefore(pivot, i)) swap(i, pivot);
        return i;
    }

    // Insertion sort. False, with records left unsorted, after limit of them had to be moved.
    bool insert(size_t first, size_t last, size_t limit) {
        size_t next = first + 1;
        if (last - first >= 3) {
            sortThree(first, first + 1, first + 2);
            next = first + 3;
        }
        size_t moved = 0;
        for (; next < last; ++next) {
            size_t k = next;
            for (; k > first && comesBefore(k, k - 1); --k)
                swap(k, k - 1);
            if (k != next && ++moved == limit) return next + 1 == last;
        }
        return true;
    }

    std::span<Record> m_records;
    const Before &m_before;
    size_t m_swaps = 0; // since the pivot of the current range was chosen
};

} // namespace egl

#include "host/ui/inputs/sequence.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <random>
#include <vector>

namespace host::ui {
namespace {

/// An entry that knows its slot, as rows and inputs do.
struct Entry {
    int name = 0;
    std::size_t slot = 0;
};

/// A sequence and the plain list that it has to equal.
class SequenceTest : public testing::Test {
protected:
    void append() {
        entries_.push_back(std::make_unique<Entry>());
        Entry* entry = entries_.back().get();
        entry->name = static_cast<int>(entries_.size());
        entry->slot = sequence_.append(entry);
        plain_.push_back(entry);
    }

    void remove(std::size_t index) {
        Entry* entry = plain_[index];
        EXPECT_EQ(sequence_.remove(entry->slot), entry);
        plain_.erase(plain_.begin() + static_cast<std::ptrdiff_t>(index));
        sequence_.tidy([](Entry* moved, std::size_t slot) { moved->slot = slot; });
    }

    [[nodiscard]] bool equal() const {
        bool same = sequence_.count() == plain_.size();
        for (std::size_t index = 0; same && index < plain_.size(); ++index) {
            same = sequence_.at(index) == plain_[index] &&
                   sequence_.indexOf(plain_[index]->slot) == index;
        }
        return same;
    }

    /// Appends and removes at random, comparing all the while.
    bool agreesFor(unsigned seed, int steps, unsigned removalsInTen) {
        std::mt19937 random(seed);
        for (int step = 0; step < steps; ++step) {
            if (!plain_.empty() && random() % 10 < removalsInTen) {
                remove(random() % plain_.size());
            } else {
                append();
            }
            if (step % 16 == 0 && !equal()) return false;
        }
        return equal();
    }

    Sequence<Entry*> sequence_;
    std::vector<Entry*> plain_;
    std::vector<std::unique_ptr<Entry>> entries_;
};

TEST_F(SequenceTest, EqualsAPlainListWhileItGrows) { EXPECT_TRUE(agreesFor(1, 2000, 3)); }

TEST_F(SequenceTest, EqualsAPlainListAtAConstantSize) { EXPECT_TRUE(agreesFor(2, 4000, 5)); }

TEST_F(SequenceTest, EqualsAPlainListWhileItShrinksAgain) {
    EXPECT_TRUE(agreesFor(3, 600, 0));
    EXPECT_TRUE(agreesFor(4, 1500, 9));
}

TEST_F(SequenceTest, ClosesItsGapsWhenTheyAreMoreThanTheEntries) {
    EXPECT_TRUE(agreesFor(5, 400, 0));
    for (int i = 0; i < 390; ++i) {
        remove(0);
    }

    EXPECT_TRUE(equal());
    EXPECT_LT(plain_.back()->slot, 100U);
}

}  // namespace
}  // namespace host::ui

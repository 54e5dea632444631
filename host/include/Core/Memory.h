#pragma once

#include <Core/LanguageLevel.h>

#include <cstddef>
#include <exception>
#include <functional>
#include <iterator>
#include <type_traits>
#include <utility>

namespace adsk::core {

/// A counted reference to an object of the host.
///
/// Any handle converts to any other: the result is null when the object is not of the requested
/// class, so a conversion is also the test for a class. A handle outlives the entity it refers to:
/// a deleted object stays reachable, and its `isValid` is false.
///
/// It is used like a plain pointer: it compares with other handles and with `nullptr`, is ordered,
/// is returned as `NULL` or 0, and converts to bool. A handle to a collection is a range:
/// `for (Ptr<Occurrence> each : component->occurrences())`.
template <class T>
class Ptr {
public:
    using element_type = T;  ///< the class that the handle refers to

    /// Refers to nothing.
    Ptr() noexcept = default;
    /// Refers to nothing. A template, so that `NULL` and 0 are null pointers and not ambiguous.
    template <class Null, std::enable_if_t<std::is_same_v<Null, std::nullptr_t>, int> = 0>
    Ptr(Null /*null*/) noexcept {}  // NOLINT(google-explicit-constructor): null is a handle

    /// Refers to `object`, or to nothing for null. With `addRef` false it takes over a reference
    /// that is already counted.
    Ptr(T* object, bool addRef = true) : object_(object) {  // NOLINT(google-explicit-constructor)
        if (object_ != nullptr && addRef) {
            object_->addRef();
        }
    }

    /// A further reference to the same object.
    Ptr(const Ptr& other) : Ptr(other.object_) {}

    /// Takes the reference over; `other` then refers to nothing.
    Ptr(Ptr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    /// Refers to the same object as a `T`, or to nothing when it is not one.
    template <class U, class = std::enable_if_t<!std::is_same_v<T, U>>>
    Ptr(const Ptr<U>& other)  // NOLINT(google-explicit-constructor): a cast is a plain assignment
        : Ptr(castTo(other.get())) {}

    /// Drops the reference.
    ~Ptr() {
        if (object_ != nullptr) {
            object_->release();
        }
    }

    /// Refers to the same object as `other`.
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the copy is made before the swap
    Ptr& operator=(const Ptr& other) {
        Ptr(other).swap(*this);
        return *this;
    }

    /// Takes the reference over; `other` then refers to nothing.
    Ptr& operator=(Ptr&& other) noexcept {
        Ptr(std::move(other)).swap(*this);
        return *this;
    }

    /// Drops the reference and refers to nothing.
    Ptr& operator=(std::nullptr_t) {
        Ptr().swap(*this);
        return *this;
    }

    /// Access to the object's members. Throws a plain `std::exception`, without a message, when the
    /// handle refers to nothing.
    T* operator->() const { return &**this; }

    /// The object; throws as `operator->` does.
    T& operator*() const {
        if (object_ == nullptr) {
            throw std::exception();
        }
        return *object_;
    }

    /// False when it refers to nothing. A deleted object still counts as something.
    // NOLINTNEXTLINE(google-explicit-constructor): `return handle;` in a function that returns bool
    operator bool() const noexcept { return object_ != nullptr; }

    /// The object, or null; the handle keeps its reference.
    [[nodiscard]] T* get() const noexcept { return object_; }

    /// The object, or null; the handle then refers to nothing, and the caller has to release the
    /// reference.
    [[nodiscard]] T* detach() noexcept { return std::exchange(object_, nullptr); }

    /// Exchanges what the two handles refer to.
    void swap(Ptr& other) noexcept { std::swap(object_, other.object_); }

private:
    template <class U>
    static T* castTo(U* object) {
        if constexpr (std::is_convertible_v<U*, T*>) {
            return object;
        } else {
            return dynamic_cast<T*>(object);
        }
    }

    T* object_ = nullptr;
};

/// True when both refer to the same object of the host, or both to nothing.
template <class T, class U>
bool operator==(const Ptr<T>& left, const Ptr<U>& right) noexcept {
    return static_cast<const void*>(left.get()) == static_cast<const void*>(right.get());
}

/// The opposite of `==`.
template <class T, class U>
bool operator!=(const Ptr<T>& left, const Ptr<U>& right) noexcept {
    return !(left == right);
}

/// An order without meaning, the same while the objects live: for sets and keys of maps.
template <class T, class U>
bool operator<(const Ptr<T>& left, const Ptr<U>& right) noexcept {
    return std::less<const void*>()(left.get(), right.get());
}

/// @name Comparisons with `nullptr`
/// Templates, so that `NULL` and 0 compare with the handle's conversion to bool.
/// @{
template <class T, class Null, std::enable_if_t<std::is_same_v<Null, std::nullptr_t>, int> = 0>
bool operator==(const Ptr<T>& left, Null /*null*/) noexcept {
    return left.get() == nullptr;
}
template <class T, class Null, std::enable_if_t<std::is_same_v<Null, std::nullptr_t>, int> = 0>
bool operator==(Null /*null*/, const Ptr<T>& right) noexcept {
    return right.get() == nullptr;
}
template <class T, class Null, std::enable_if_t<std::is_same_v<Null, std::nullptr_t>, int> = 0>
bool operator!=(const Ptr<T>& left, Null /*null*/) noexcept {
    return left.get() != nullptr;
}
template <class T, class Null, std::enable_if_t<std::is_same_v<Null, std::nullptr_t>, int> = 0>
bool operator!=(Null /*null*/, const Ptr<T>& right) noexcept {
    return right.get() != nullptr;
}
/// @}

/// A place in a collection, for range-based `for` loops.
template <class Collection>
class CollectionIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = decltype(std::declval<const Collection&>().item(std::size_t{}));
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;
    using reference = value_type;

    /// The place `index` of a collection that outlives the iterator.
    CollectionIterator(const Collection& collection, std::size_t index)
        : collection_(&collection), index_(index) {}

    /// The item at this place; null for one that the collection no longer has.
    value_type operator*() const { return collection_->item(index_); }

    /// Goes on to the next place.
    CollectionIterator& operator++() {
        ++index_;
        return *this;
    }

    /// True for the same place.
    bool operator==(const CollectionIterator& other) const { return index_ == other.index_; }
    /// The opposite of `==`.
    bool operator!=(const CollectionIterator& other) const { return index_ != other.index_; }

private:
    const Collection* collection_;
    std::size_t index_;
};

/// The first item of a collection; throws as `operator->` does when the handle refers to nothing.
template <class Collection, class = decltype(std::declval<const Collection&>().count())>
CollectionIterator<Collection> begin(const Ptr<Collection>& collection) {
    return {*collection, 0};
}

/// The end of a collection as long as it is now: items that are added meanwhile are not visited.
template <class Collection>
auto end(const Ptr<Collection>& collection)
    -> decltype(collection->count(), CollectionIterator<Collection>(*collection, 0)) {
    return {*collection, static_cast<std::size_t>(collection->count())};
}

}  // namespace adsk::core

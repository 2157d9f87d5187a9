// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <new>
#include <utility>

namespace quindar {

// An owning double-linked list whose links live in the elements: `T` has public members
// `T *next` and `T *prev` and a constructor without arguments. The list makes every element
// itself (`add`, `insert`) and destroys it (`del`, `flush`, its own end); callers fill in the
// element they get back and walk the list through `next` from `gethead()`.
//
// `swap` exchanges the contents of two elements and leaves both in their places: it swaps
// the whole objects through an unqualified `swap(T &, T &)` (so a record with members that
// cannot be moved, such as DynArray tables, provides its own swap found by lookup, and any
// other record falls back to std::swap), then puts back the links each position had.
template <class T>
class LinkList {
public:
    LinkList() = default;
    LinkList(const LinkList &) = delete;
    LinkList &operator=(const LinkList &) = delete;
    ~LinkList() { flush(); }

    // A new element at the tail; null when it cannot be allocated.
    T *add() {
        T *p = new (std::nothrow) T();
        if (p == nullptr) return nullptr;
        p->next = nullptr;
        p->prev = tail_;
        if (tail_ != nullptr)
            tail_->next = p;
        else
            head_ = p;
        tail_ = p;
        ++count_;
        return p;
    }

    // A new element in front of `before`; null for a null `before` or a failed allocation.
    T *insert(T *before) {
        if (before == nullptr) return nullptr;
        T *p = new (std::nothrow) T();
        if (p == nullptr) return nullptr;
        p->next = before;
        p->prev = before->prev;
        if (before->prev != nullptr)
            before->prev->next = p;
        else
            head_ = p;
        before->prev = p;
        ++count_;
        return p;
    }

    // Unlinks and destroys `p`. Returns the element that followed it: null for the tail or a
    // null `p`.
    T *del(T *p) {
        if (p == nullptr) return nullptr;
        T *following = p->next;
        if (p->prev != nullptr)
            p->prev->next = p->next;
        else
            head_ = p->next;
        if (p->next != nullptr)
            p->next->prev = p->prev;
        else
            tail_ = p->prev;
        delete p;
        --count_;
        return following;
    }

    // Exchanges the contents of `a` and `b`; each stays at its position in the list.
    void swap(T *a, T *b) {
        if (a == nullptr || b == nullptr || a == b) return;
        T *const a_next = a->next;
        T *const a_prev = a->prev;
        T *const b_next = b->next;
        T *const b_prev = b->prev;
        using std::swap;
        swap(*a, *b);
        a->next = a_next;
        a->prev = a_prev;
        b->next = b_next;
        b->prev = b_prev;
    }

    // Destroys every element.
    void flush() {
        while (head_ != nullptr) {
            T *following = head_->next;
            delete head_;
            head_ = following;
        }
        tail_ = nullptr;
        count_ = 0;
    }

    T *gethead() const { return head_; }
    T *gettail() const { return tail_; }
    int count() const { return count_; }

private:
    int count_ = 0;
    T *head_ = nullptr;
    T *tail_ = nullptr;
};

}  // namespace quindar

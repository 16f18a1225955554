#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>
#include <vector>

#include "draw/list/DrawBackEnd.h"
#include "draw/list/MetaOpcodes.h"
#include "draw/list/MetaRecordReader.h"
#include "foundation/ArrayViews.h"

// How a parameter of a back-end operation travels in a record: the format
// letters it stands for, how it is written into words and read back from the
// reader's slots.  The record writer and the player both go through these,
// typed by the operation the record table names.
template <class T>
struct RecordSlot;

template <>
struct RecordSlot<int> {
    static constexpr int letters = 1;
    static constexpr bool fits(char c) { return c == 'i' || c == 'x'; }
    static void put(std::vector<int> &out, int v) { out.push_back(v); }
    static int get(const MetaRecordReader &r, int k) { return r.integer(k); }
};

template <>
struct RecordSlot<bool> {
    static constexpr int letters = 1;
    static constexpr bool fits(char c) { return c == 'b'; }
    static void put(std::vector<int> &out, bool v) { out.push_back(v ? 1 : 0); }
    static bool get(const MetaRecordReader &r, int k) { return r.flag(k); }
};

template <>
struct RecordSlot<double> {
    static constexpr int letters = 1;
    static constexpr bool fits(char c) { return c == 'd'; }
    // Low word first: the native order of the bits.
    static void put(std::vector<int> &out, double v) {
        int w[2];
        std::memcpy(w, &v, sizeof w);
        out.push_back(w[0]);
        out.push_back(w[1]);
    }
    static double get(const MetaRecordReader &r, int k) { return r.number(k); }
};

// A byte string: its length, then four bytes to a word, low byte first.
template <>
struct RecordSlot<const char *> {
    static constexpr int letters = 1;
    static constexpr bool fits(char c) { return c == 's'; }
    static void put(std::vector<int> &out, const char *s) {
        int n = s ? (int)std::strlen(s) : 0;
        out.push_back(n);
        size_t at = out.size();
        out.resize(at + (n + 3) / 4, 0);
        if (n > 0) std::memcpy(&out[at], s, (size_t)n);
    }
    static const char *get(const MetaRecordReader &r, int k) { return r.bytes(k); }
};

template <>
struct RecordSlot<DoubleArray> {
    static constexpr int letters = 1;
    static constexpr bool fits(char c) { return c == 'D'; }
    static void put(std::vector<int> &out, DoubleArray v) {
        out.push_back(v.len);
        for (int i = 0; i < v.len; ++i) RecordSlot<double>::put(out, v.data[i]);
    }
    static DoubleArray get(const MetaRecordReader &r, int k) {
        return DoubleArray(r.doubles(k), r.length(k));
    }
};

// Integers or colour words.
template <>
struct RecordSlot<IntArray> {
    static constexpr int letters = 1;
    static constexpr bool fits(char c) { return c == 'I' || c == 'X'; }
    static void put(std::vector<int> &out, IntArray v) {
        out.push_back(v.len);
        if (v.len > 0) out.insert(out.end(), v.data, v.data + v.len);
    }
    static IntArray get(const MetaRecordReader &r, int k) {
        return IntArray(r.ints(k), r.length(k));
    }
};

// A fixed group of arguments of one kind passed as an array (radii, a matrix):
// one letter per element.
template <class T, size_t N>
struct RecordSlot<const T (&)[N]> {
    static constexpr int letters = (int)N;
    static constexpr bool fits(char c) { return RecordSlot<T>::fits(c); }
    static void put(std::vector<int> &out, const T (&v)[N]) {
        for (const T &e : v) RecordSlot<T>::put(out, e);
    }
    // Lives until the end of the call it is an argument of.
    struct Values {
        T v[N];
        using Ref = const T (&)[N];
        operator Ref() const { return v; }
    };
    static Values get(const MetaRecordReader &r, int k) {
        Values values;
        for (size_t i = 0; i < N; ++i) values.v[i] = RecordSlot<T>::get(r, k + (int)i);
        return values;
    }
};

// True when parameters of types P, in order, take exactly the letters of `format`.
template <class... P>
constexpr bool slotsFit(const char *format) {
    int at = 0;
    bool ok = true;
    auto take = [&](int letters, bool (*fits)(char)) {
        for (int i = 0; ok && i < letters; ++i, ++at) ok = format[at] != 0 && fits(format[at]);
    };
    (take(RecordSlot<P>::letters, RecordSlot<P>::fits), ...);
    (void)take;
    return ok && format[at] == 0;
}

// Appends arguments in record layout, each by its own type.
template <class... A>
void putSlots(std::vector<int> &out, const A &...args) {
    (RecordSlot<A>::put(out, args), ...);
    (void)out;
}

// The record writer and the player's call of one back-end operation.
template <class Operation>
struct RecordCall;

template <class... P>
struct RecordCall<void (DrawBackEnd::*)(P...)> {
    using Operation = void (DrawBackEnd::*)(P...);

    static constexpr bool fits(const char *format) { return slotsFit<P...>(format); }

    // The writer's signature is the operation's.
    static void encode(std::vector<int> &out, P... args) {
        (RecordSlot<P>::put(out, args), ...);
        (void)out;
    }

    // Calls the operation with the arguments the reader decoded.
    static void call(DrawBackEnd *backEnd, Operation operation, const MetaRecordReader &r) {
        callWith(backEnd, operation, r, std::index_sequence_for<P...>());
    }

private:
    static constexpr int firstSlot(size_t k) {
        constexpr int letters[] = {0, RecordSlot<P>::letters...};
        int slot = 0;
        for (size_t i = 0; i < k; ++i) slot += letters[i + 1];
        return slot;
    }
    template <size_t... K>
    static void callWith(DrawBackEnd *backEnd, Operation operation, const MetaRecordReader &r,
                         std::index_sequence<K...>) {
        (backEnd->*operation)(RecordSlot<P>::get(r, firstSlot(K))...);
        (void)r;
    }
};

// The table row of one record kind, typed.
template <MetaOpcode op>
struct MetaRecordKind;

#define VISTREL_META_KIND(name, code, format_, scaled_, reading, operation_, params) \
    template <>                                                                      \
    struct MetaRecordKind<kOp##name> {                                               \
        static constexpr const char *format = format_;                               \
        static constexpr const char *scaled = scaled_;                               \
        static constexpr auto operation = &DrawBackEnd::operation_;                  \
        using Call = RecordCall<std::remove_const_t<decltype(operation)>>;           \
    };                                                                               \
    static_assert(VISTREL_META_READ_BY_##reading(name),                              \
                  "parameters of " #operation_ " don't match the format " format_);
// An Args record's parameters must take the letters of its format.
#define VISTREL_META_READ_BY_Args(name) \
    MetaRecordKind<kOp##name>::Call::fits(MetaRecordKind<kOp##name>::format)
#define VISTREL_META_READ_BY_Own(name) true

VISTREL_META_RECORDS(VISTREL_META_KIND)

#undef VISTREL_META_KIND
#undef VISTREL_META_READ_BY_Args
#undef VISTREL_META_READ_BY_Own

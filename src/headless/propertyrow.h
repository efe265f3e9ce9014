// One row of a property table: a name, how to read it, how to set it. Rows are made from a class's own pair of member
// functions.
#pragma once

#include "frame/place.h"
#include "frame/player.h"
#include "headless/scripterror.h"

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <variant>

namespace brindlex {

// Values as a setter takes them.

inline const std::string& AsText(const PropertyValue& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return *text;
    }
    throw ScriptError("a text is wanted");
}

inline double AsNumber(const PropertyValue& value) {
    if (const auto* const number = std::get_if<double>(&value)) {
        return *number;
    }
    throw ScriptError("a number is wanted");
}

/// Ties to even, as the runtime converts.
inline int AsWhole(const PropertyValue& value) {
    const double whole = std::nearbyint(AsNumber(value));
    if (std::fabs(whole) > std::numeric_limits<int>::max()) {
        throw ScriptError("the number is too large");
    }
    return static_cast<int>(whole);
}

inline bool AsFlag(const PropertyValue& value) {
    return AsNumber(value) != 0;
}

inline double NumberOfFlag(bool flag) {
    return flag ? -1.0 : 0.0;
}

/// A row of the table of objects of one base class. `Read` gives nothing for an object of another kind than the row's.
template <class Base>
struct PropertyRow {
    std::string_view Name;
    std::function<std::optional<PropertyValue>(Base&)> Read;
    std::function<void(Base&, const PropertyValue&)> Set;  ///< none where it can only be read
};

/// Makes rows for one class of objects in the table of a base class.
template <class Base, class Kind = Base>
struct RowsOf {
    using Row = PropertyRow<Base>;
    template <class Given>
    using Setter = void (Kind::*)(Given);
    template <class Got>
    using Getter = Got (Kind::*)() const;

    /// From any two functions.
    template <class Read, class Set>
    static Row Of(std::string_view name, Read read, Set set) {
        return {name,
                [read](Base& object) -> std::optional<PropertyValue> {
                    auto* const own = dynamic_cast<Kind*>(&object);
                    return own == nullptr ? std::nullopt : std::optional<PropertyValue>(read(*own));
                },
                [set](Base& object, const PropertyValue& value) { set(dynamic_cast<Kind&>(object), value); }};
    }
    template <class Read>
    static Row ReadOnly(std::string_view name, Read read) {
        Row row = Of(name, read, [](Kind&, const PropertyValue&) {});
        row.Set = nullptr;
        return row;
    }

    static Row Text(std::string_view name, Getter<const std::string&> get, Setter<const std::string&> set) {
        return Of(
            name, [get](Kind& own) { return (own.*get)(); },
            [set](Kind& own, const PropertyValue& value) { (own.*set)(AsText(value)); });
    }
    static Row Number(std::string_view name, Getter<double> get, Setter<double> set) {
        return Of(
            name, [get](Kind& own) { return (own.*get)(); },
            [set](Kind& own, const PropertyValue& value) { (own.*set)(AsNumber(value)); });
    }
    static Row Whole(std::string_view name, Getter<int> get, Setter<int> set) {
        return Of(
            name, [get](Kind& own) { return double((own.*get)()); },
            [set](Kind& own, const PropertyValue& value) { (own.*set)(AsWhole(value)); });
    }
    static Row Flag(std::string_view name, Getter<bool> get, Setter<bool> set) {
        return Of(
            name, [get](Kind& own) { return NumberOfFlag((own.*get)()); },
            [set](Kind& own, const PropertyValue& value) { (own.*set)(AsFlag(value)); });
    }
    static Row Number(std::string_view name, Getter<double> get) {
        return ReadOnly(name, [get](Kind& own) { return (own.*get)(); });
    }
    static Row Whole(std::string_view name, Getter<int> get) {
        return ReadOnly(name, [get](Kind& own) { return double((own.*get)()); });
    }
    static Row Flag(std::string_view name, Getter<bool> get) {
        return ReadOnly(name, [get](Kind& own) { return NumberOfFlag((own.*get)()); });
    }
};

}  // namespace brindlex

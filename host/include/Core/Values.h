#pragma once

#include <Core/Base.h>
#include <Core/Enums.h>

#include <string>

/// Values on their way into the host.
namespace adsk::core {

/// A value as one of several types, for operations that accept them all. It never changes.
class ValueInput : public Base {
public:
    static const char* classType();  ///< "adsk::core::ValueInput"

    /// An expression such as "2 in + 4 mm", evaluated by the operation that receives it, in the
    /// units of the document where it names none. Not checked here.
    static Ptr<ValueInput> createByString(const std::string& value);
    /// A number in the host's units: cm and radians.
    static Ptr<ValueInput> createByReal(double value);
    /// An object that has a value, such as a parameter; null for null.
    static Ptr<ValueInput> createByObject(const Ptr<Base>& value);
    /// True or false.
    static Ptr<ValueInput> createByBoolean(bool value);

    /// What it was created from.
    [[nodiscard]] virtual ValueTypes valueType() const = 0;

    /// The expression; empty, with the last error set, for another type.
    [[nodiscard]] virtual std::string stringValue() const = 0;
    /// The number; 0, with the last error set, for another type.
    [[nodiscard]] virtual double realValue() const = 0;
    /// The object; null, with the last error set, for another type.
    [[nodiscard]] virtual Ptr<Base> objectValue() const = 0;
    /// The truth value; false, with the last error set, for another type.
    [[nodiscard]] virtual bool booleanValue() const = 0;
};

/// Named values that are passed to `CommandDefinition::execute`.
class NamedValues : public Base {
public:
    static const char* classType();  ///< "adsk::core::NamedValues"

    /// A new object without values; never null.
    static Ptr<NamedValues> create();

    /// Sets the value of a name, which replaces the one that it had. False for an empty name and
    /// for null.
    virtual bool setValue(const std::string& name, const Ptr<ValueInput>& value) = 0;

    /// The value of a name, null for one that was not set.
    [[nodiscard]] virtual Ptr<ValueInput> value(const std::string& name) const = 0;
};

}  // namespace adsk::core

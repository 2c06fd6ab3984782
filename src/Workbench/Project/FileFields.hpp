#pragma once

#include <concepts>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "Workbench/Project/FileValues.hpp"

/// The two ways of a record between memory and file. A record's keys are listed once, in a function
/// template that is given one of these and the record; `Must` names a key that always stands in the
/// file, `May` one that is left out where the value is the usual one.
namespace Merivane::Workbench {

/// A record or a constant one.
template <typename Type, typename Record>
concept Is = std::same_as<std::remove_const_t<Type>, Record>;

class FieldsToRead {
public:
    explicit FieldsToRead(FileNames& fileNames) : names(fileNames) {}

    static constexpr bool IsReading = true;

    template <typename Value, typename... Rules>
    void Must(std::string_view key, Value& value, const Rules&... rules) {
        fields.push_back(Catalog::Required(key, Into(value, rules...)));
    }

    template <typename Value, typename... Rules>
    void May(std::string_view key, Value& value, const std::type_identity_t<Value>& usual,
             const Rules&... rules) {
        value = usual;
        fields.push_back(Catalog::Optional(key, Into(value, rules...)));
    }

    /// A list of records, each by `describe(fields, record)`; none where it is missing.
    template <typename Record, typename Describe>
    void List(std::string_view key, std::vector<Record>& records, Describe describe,
              Catalog::ListSize size = {}) {
        const auto readItem = [&known = names, describe](const Place& place, Record& record,
                                                         std::string& error) {
            FieldsToRead item(known);
            describe(item, record);
            return item.Read(place, error);
        };
        fields.push_back({key, size.fewest > 0, Catalog::IntoList(records, size, readItem)});
    }

    /// One record under a key of its own.
    template <typename Record, typename Describe>
    void Object(std::string_view key, Record& record, Describe describe, bool required) {
        const auto read = [&known = names, &record, describe](const Place& place,
                                                              std::string& error) {
            FieldsToRead object(known);
            describe(object, record);
            return object.Read(place, error);
        };
        fields.push_back({key, required, read});
    }

    void Custom(std::string_view key, bool required, FieldReader read) {
        fields.push_back({key, required, std::move(read)});
    }

    KnownNames Layers() const { return {&names.layers}; }
    KnownNames Combinations() const { return {&names.combinations}; }
    KnownNames LineTypes() const { return {&names.lineTypes}; }
    KnownNames Fills() const { return {&names.fills}; }
    KnownNames Surfaces() const { return {&names.surfaces}; }
    KnownNames Parts() const { return {&names.parts}; }
    const GuidTable* Guids() const { return &names.guids; }

    /// Reads the object by the fields told so far, in their order.
    bool Read(const Place& place, std::string& error, std::string_view context = {}) const {
        return Catalog::ReadObject(place, std::span<const Catalog::Field>(fields), error, context);
    }

    FileNames& names;

private:
    std::vector<Catalog::Field> fields;
};

class FieldsToWrite {
public:
    FieldsToWrite(const Project& writtenProject, const std::vector<ParameterPlaces>& partParameters)
        : project(writtenProject), parameterPlaces(partParameters) {}

    static constexpr bool IsReading = false;

    template <typename Value, typename... Rules>
    void Must(std::string_view key, const Value& value, const Rules&... rules) {
        if constexpr (requires { Stored(value, rules...); }) {
            Set(key, Stored(value, rules...));
        } else {
            Set(key, Stored(value)); // a rule for the reader
        }
    }

    template <typename Value, typename... Rules>
    void May(std::string_view key, const Value& value, const std::type_identity_t<Value>& usual,
             const Rules&... rules) {
        if (!(value == usual)) {
            Must(key, value, rules...);
        }
    }

    template <typename Record, typename Describe>
    void List(std::string_view key, const std::vector<Record>& records, Describe describe,
              Catalog::ListSize size = {}) {
        if (records.empty() && size.fewest == 0) {
            return;
        }
        JsonValue list = JsonValue::MakeArray();
        list.items.reserve(records.size());
        for (const Record& record : records) {
            FieldsToWrite item(project, parameterPlaces);
            describe(item, record);
            list.items.push_back(item.Take());
        }
        Set(key, std::move(list));
    }

    template <typename Record, typename Describe>
    void Object(std::string_view key, const Record& record, Describe describe, bool required) {
        if (required || !(record == Record())) {
            FieldsToWrite object(project, parameterPlaces);
            describe(object, record);
            Set(key, object.Take());
        }
    }

    void Set(std::string_view key, JsonValue value) {
        json.Set(std::string(key), std::move(value));
    }

    NamesOfNumbers<Host::Layer> Layers() const { return {&project.layers}; }
    NamesOfNumbers<Host::LineType> LineTypes() const { return {&project.lineTypes}; }
    NamesOfNumbers<Host::Fill> Fills() const { return {&project.fills}; }
    NamesOfNumbers<Host::ModelSurface> Surfaces() const { return {&project.surfaces}; }
    NamesOfParts Parts() const { return {&project.parts}; }
    KnownNames Combinations() const { return {}; }
    const GuidTable* Guids() const { return nullptr; }

    JsonValue Take() { return std::move(json); }

    const Project& project;
    const std::vector<ParameterPlaces>& parameterPlaces;

private:
    JsonValue json = JsonValue::MakeObject();
};

} // namespace Merivane::Workbench

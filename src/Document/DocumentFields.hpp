#pragma once

#include <array>

#include "Catalog/JsonFields.hpp"
#include "Simulation/Geometry.hpp"

/// The readers of fields that scene documents have beside those of every JSON file.
namespace Merivane::Document {

using Catalog::CheckList;
using Catalog::Field;
using Catalog::FieldReader;
using Catalog::Into;
using Catalog::IntoChoice;
using Catalog::IntoList;
using Catalog::ListSize;
using Catalog::NumberRange;
using Catalog::NumberText;
using Catalog::Optional;
using Catalog::PathOf;
using Catalog::Place;
using Catalog::ReadObject;
using Catalog::Refuse;
using Catalog::RefuseValue;
using Catalog::Required;

/// [x, y] and [x, y, z], every coordinate inside `range`.
FieldReader Into(Simulation::Point2D& target, NumberRange range);
FieldReader Into(Simulation::Point3D& target, NumberRange range);

/// A number for all three channels or [r, g, b], each inside `range`.
FieldReader IntoChannels(std::array<double, 3>& target, NumberRange range);

} // namespace Merivane::Document

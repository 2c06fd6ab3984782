#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "ContractHost.hpp"
#include "Host/Attributes.hpp"
#include "Host/Elements.hpp"
#include "Host/Library.hpp"
#include "Host/Session.hpp"
#include "Host/Storage.hpp"
#include "Host/Stories.hpp"
#include "Host/Views.hpp"

/// Elements for the contract tests, made through the port alone.
namespace Merivane::Host {

/// A fresh contract project for each test.
class ProjectContract : public ::testing::Test {
protected:
    void SetUp() override { OpenContractProject(); }
};

/// An element with the memo that belongs to it.
struct Sample {
    Element element;
    ElementMemo memo;
};

AttributeIndex LayerNamed(std::string_view name);
std::int32_t PartNamed(std::string_view name);

/// A contour without arcs, and the square [x, x + side] x [y, y + side].
Contour Ring(std::vector<Coordinate> vertices);
Contour Square(double x, double y, double side);

/// One good element of each kind that can be created, on the free layer and story 0.
Sample MakeLine();
Sample MakePolyLine();
Sample MakeArc();
Sample MakeSpline();
Sample MakeHatch();
Sample MakeText();
Sample MakeZone();
Sample MakeLamp();
Sample MakeObject();
Sample MakeMorph();
std::vector<Sample> MakeDrawnSamples();
std::vector<Sample> MakeModelSamples();

/// Creates the element in a step of its own; its header comes back in it.
ErrorCode CreateInStep(Sample& sample);

/// The same, expected to succeed; gives the guid.
Guid Created(Sample sample);

/// Changes and deletes in a step of their own.
ErrorCode ChangeInStep(const Element& element, const ElementMemo& memo = {}, MemoParts parts = {});
ErrorCode DeleteInStep(const std::vector<Guid>& guids);

/// The elements of a type in the current database; none where they can't be listed.
std::vector<Guid> Listed(ElementType type, ElementFilter filter = ElementFilter::None);

/// The element; a failure of the test where there is none.
Element Read(const Guid& guid);

bool Exists(const Guid& guid);

/// The contract project's own elements.
Guid TheWall();
Guid TheLineOn(std::string_view layer); ///< on the free layer the locked one

} // namespace Merivane::Host

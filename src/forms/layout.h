// Layout of a form: boxes in boxes, no pixel positions. A row puts its boxes side by side, a column puts them below
// each other, a grid lines them up in so many columns, and buttons stand at the right end of their row in equal width.
//
// The order in which controls stand in the layout is the order of the Tab key.
#pragma once

#include <functional>
#include <initializer_list>
#include <vector>

namespace forms {

class Control;

struct Box {
  enum class Kind { Single, Row, Column, Grid, Buttons };
  Kind kind = Kind::Column;
  Control* control = nullptr;  // of a Single
  std::vector<Box> boxes;
  int columns = 1;  // of a Grid

  Box() = default;
  Box(Control& c) : kind(Kind::Single), control(&c) {}  // NOLINT: a control stands for the box that holds it
  Box(Kind k, std::initializer_list<Box> b, int c = 1) : kind(k), boxes(b), columns(c) {}
};

inline Box Row(std::initializer_list<Box> boxes) { return {Box::Kind::Row, boxes}; }
inline Box Column(std::initializer_list<Box> boxes) { return {Box::Kind::Column, boxes}; }
inline Box Grid(int columns, std::initializer_list<Box> boxes) { return {Box::Kind::Grid, boxes, columns}; }
inline Box Buttons(std::initializer_list<Box> boxes) { return {Box::Kind::Buttons, boxes}; }

// Pixels.
struct Extent {
  int width = 0;
  int height = 0;
};

struct Placement {
  Control* control = nullptr;
  int left = 0, top = 0, width = 0, height = 0;
};

// What the realization knows about the screen: the room that a control needs, and the gap between boxes, in pixels.
struct Measures {
  std::function<Extent(const Control&)> extent;
  int gap = 0;
};

// The smallest room that the box needs.
Extent SmallestExtent(const Box& box, const Measures& measures);

// The places of all controls in the room given, in the order of the layout. What is left over goes to the growing
// controls.
std::vector<Placement> Arrange(const Box& box, Extent room, const Measures& measures);

// All controls of a box in the order of the layout.
std::vector<Control*> ControlsOf(const Box& box);

}  // namespace forms

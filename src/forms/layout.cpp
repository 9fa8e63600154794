#include "forms/layout.h"

#include <algorithm>
#include <numeric>

#include "forms/control.h"

namespace forms {

namespace {

using Kind = Box::Kind;

struct Place {
  int left = 0, top = 0, width = 0, height = 0;
};

template <class Test>
bool AnyControl(const Box& box, const Test& test) {
  if (box.kind == Kind::Single) return test(*box.control);
  return std::any_of(box.boxes.begin(), box.boxes.end(), [&](const Box& inner) { return AnyControl(inner, test); });
}

bool GrowsInWidth(const Box& box) {
  return AnyControl(box, [](const Control& control) { return control.size.grows; });
}

// A control of one line, such as a progress bar, would only look swollen.
bool GrowsInHeight(const Box& box) {
  return AnyControl(box, [](const Control& control) { return control.size.grows && control.size.lines > 1; });
}

bool HasButtons(const Box& box) {
  return box.kind == Kind::Buttons || std::any_of(box.boxes.begin(), box.boxes.end(), HasButtons);
}

int Sum(const std::vector<int>& sizes, int gap) {
  if (sizes.empty()) return 0;
  return std::accumulate(sizes.begin(), sizes.end(), 0) + gap * static_cast<int>(sizes.size() - 1);
}

// Deals out what is left of the room among those that grow, to the pixel.
void Distribute(std::vector<int>& sizes, const std::vector<bool>& growing, int room, int gap) {
  int open = static_cast<int>(std::count(growing.begin(), growing.end(), true));
  int left = std::max(room - Sum(sizes, gap), 0);
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    if (!growing[i]) continue;
    const int share = left / open--;
    sizes[i] += share;
    left -= share;
  }
}

// Widths of the columns and heights of the rows of a grid, and which of them grow. A row is a grid of one row, a column
// one of one column.
struct Tracks {
  std::vector<int> widths, heights;
  std::vector<bool> growingWidths, growingHeights;
};

std::size_t ColumnsOf(const Box& box) {
  if (box.kind == Kind::Column) return 1;
  if (box.kind == Kind::Grid) return static_cast<std::size_t>(std::max(box.columns, 1));
  return std::max<std::size_t>(box.boxes.size(), 1);
}

Tracks TracksOf(const Box& box, const Measures& measures) {
  const std::size_t columns = ColumnsOf(box);
  const std::size_t rows = (box.boxes.size() + columns - 1) / columns;
  const std::size_t usedColumns = std::min(columns, box.boxes.size());
  Tracks tracks{std::vector<int>(usedColumns), std::vector<int>(rows), std::vector<bool>(usedColumns),
                std::vector<bool>(rows)};
  for (std::size_t i = 0; i < box.boxes.size(); ++i) {
    const Box& inner = box.boxes[i];
    const Extent extent = SmallestExtent(inner, measures);
    const std::size_t column = i % columns;
    const std::size_t row = i / columns;
    tracks.widths[column] = std::max(tracks.widths[column], extent.width);
    tracks.heights[row] = std::max(tracks.heights[row], extent.height);
    if (GrowsInWidth(inner)) tracks.growingWidths[column] = true;
    if (GrowsInHeight(inner)) tracks.growingHeights[row] = true;
  }
  // Buttons reach the right end of their row when nothing else fills it.
  if (std::count(tracks.growingWidths.begin(), tracks.growingWidths.end(), true) == 0) {
    for (std::size_t i = 0; i < box.boxes.size(); ++i) {
      if (HasButtons(box.boxes[i])) tracks.growingWidths[i % columns] = true;
    }
  }
  if (box.kind == Kind::Buttons && !tracks.widths.empty()) {
    const int widest = *std::max_element(tracks.widths.begin(), tracks.widths.end());
    tracks.widths.assign(tracks.widths.size(), widest);
  }
  return tracks;
}

void ArrangeIn(const Box& box, const Place& place, const Measures& measures, std::vector<Placement>& placements);

void ArrangeSingle(Control& control, const Place& place, const Measures& measures, std::vector<Placement>& placements) {
  const Extent extent = measures.extent(control);
  const bool tall = control.size.grows && control.size.lines > 1;
  placements.push_back({&control, place.left, place.top, control.size.grows ? place.width : extent.width,
                        tall ? place.height : extent.height});
}

void ArrangeTracks(const Box& box, const Place& place, const Measures& measures, std::vector<Placement>& placements) {
  Tracks tracks = TracksOf(box, measures);
  const std::vector<int> smallestHeights = tracks.heights;
  Distribute(tracks.widths, tracks.growingWidths, place.width, measures.gap);
  Distribute(tracks.heights, tracks.growingHeights, place.height, measures.gap);
  // What is in a column has its whole width, so that buttons find its right end.
  if (box.kind == Kind::Column && !tracks.widths.empty()) tracks.widths[0] = std::max(tracks.widths[0], place.width);
  int start = place.left;
  if (box.kind == Kind::Buttons) start += std::max(place.width - Sum(tracks.widths, measures.gap), 0);

  const std::size_t columns = ColumnsOf(box);
  int top = place.top;
  for (std::size_t row = 0; row < tracks.heights.size(); ++row) {
    int left = start;
    for (std::size_t column = 0; column < tracks.widths.size(); ++column) {
      const std::size_t i = row * columns + column;
      if (i >= box.boxes.size()) break;
      const Box& inner = box.boxes[i];
      Place cell{left, top, tracks.widths[column], tracks.heights[row]};
      if (!GrowsInHeight(inner)) {
        // A text stands level with the field beside it.
        cell.height = SmallestExtent(inner, measures).height;
        cell.top += (smallestHeights[row] - cell.height) / 2;
      }
      if (box.kind == Kind::Buttons)
        placements.push_back({inner.control, cell.left, cell.top, cell.width, cell.height});
      else ArrangeIn(inner, cell, measures, placements);
      left += tracks.widths[column] + measures.gap;
    }
    top += tracks.heights[row] + measures.gap;
  }
}

void ArrangeIn(const Box& box, const Place& place, const Measures& measures, std::vector<Placement>& placements) {
  if (box.kind == Kind::Single) ArrangeSingle(*box.control, place, measures, placements);
  else ArrangeTracks(box, place, measures, placements);
}

void CollectControls(const Box& box, std::vector<Control*>& controls) {
  if (box.kind == Kind::Single) controls.push_back(box.control);
  for (const Box& inner : box.boxes) CollectControls(inner, controls);
}

}  // namespace

Extent SmallestExtent(const Box& box, const Measures& measures) {
  if (box.kind == Kind::Single) return measures.extent(*box.control);
  const Tracks tracks = TracksOf(box, measures);
  return {Sum(tracks.widths, measures.gap), Sum(tracks.heights, measures.gap)};
}

std::vector<Placement> Arrange(const Box& box, Extent room, const Measures& measures) {
  std::vector<Placement> placements;
  ArrangeIn(box, {0, 0, room.width, room.height}, measures, placements);
  return placements;
}

std::vector<Control*> ControlsOf(const Box& box) {
  std::vector<Control*> controls;
  CollectControls(box, controls);
  return controls;
}

}  // namespace forms

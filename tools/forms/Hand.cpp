#include "tools/forms/Hand.h"

#include "tools/forms/Drawn.h"

#include <numbers>

namespace hooptab {

namespace {

constexpr double kRubber = 1.1; // radius of what an eraser's edge or a brush leaves, millimetres

// From side to side and down by so much each time, in a frame around (0, 0).
PenLine zigzag(double width, double height, double step, double unrest, Random& random) {
  PenLine line;
  bool isRight = false;
  for (double y = -height / 2; y <= height / 2; y += step) {
    const double end = width / 2 + unrest * normal(random) / 2;
    line.push_back({isRight ? end : -end, y});
    isRight = !isRight;
  }
  return line;
}

PenLine dot(double radius, double step) {
  PenLine line = {{0, 0}};
  for (double turn = 0, at = 0; at <= radius; turn += 0.6, at += step * 0.6 / (2 * std::numbers::pi))
    line.push_back({at * std::cos(turn), at * std::sin(turn)});
  return line;
}

} // namespace

const char* Hand::name(Mark mark) {
  constexpr const char* kNames[kMarks] = {"cross", "dot", "stroke", "check mark", "half filled", "scribble"};
  return kNames[static_cast<std::size_t>(mark)];
}

Hand::Hand(Mark mark, const Pen& pen, Random& random)
    : m_mark(mark), m_pen(pen), m_size(real(random, 2.3, 3.7)), m_way(random.below(4)) {
  m_bias.x = real(random, -0.35, 0.35);
  m_bias.y = real(random, -0.35, 0.35);
  m_unrest = real(random, 0.08, 0.22);
  m_slant = real(random, -0.2, 0.2);
}

void Hand::tickWith(const Pen& pen, PaperSheet& paper, const FormRect& cell, Random& random) const {
  Place middle = {cell.x + cell.width / 2 + m_bias.x, cell.y + cell.height / 2 + m_bias.y};
  middle.x += m_unrest * normal(random) / 2;
  middle.y += m_unrest * normal(random) / 2;
  const double slant = m_slant + 0.06 * normal(random);
  const double half = m_size / 2 * real(random, 0.9, 1.1);
  const double pressure = real(random, 0.8, 1.05);
  // Each corner slips a little.
  const auto draw = [&](const PenLine& shape, double unrest) {
    PenLine line;
    for (const Place corner : shape) {
      Place at = {middle.x + corner.x * std::cos(slant) - corner.y * std::sin(slant),
                  middle.y + corner.x * std::sin(slant) + corner.y * std::cos(slant)};
      at.x += unrest * normal(random);
      at.y += unrest * normal(random);
      line.push_back(at);
    }
    pen.draw(paper, line, random, pressure);
  };

  switch (m_mark) {
  case Mark::Cross:
    draw({{-half, -half}, {half, half}}, m_unrest);
    draw({{half, -half}, {-half, half}}, m_unrest);
    break;
  case Mark::Dot: draw(dot(std::max(0.5, half * 0.45) - pen.radius * 0.5, pen.radius), 0.05); break;
  case Mark::Stroke: {
    const PenLine ways[] = {{{-half, half}, {half, -half}},
                            {{-half, -half}, {half, half}},
                            {{0, -half}, {0, half}},
                            {{-half, 0}, {half, 0}}};
    draw(ways[m_way], m_unrest);
    break;
  }
  case Mark::Check: // leaves the cell at the upper right
    draw({{-0.6 * half, 0}, {-0.1 * half, 0.8 * half}, {1.3 * half, -real(random, 1.3, 1.8) * half}},
         m_unrest * 0.7);
    break;
  case Mark::HalfFilled: {
    const double near = 0.45 * cell.width;
    PenLine shape = zigzag(near, 0.8 * cell.height, pen.radius * 2.2, m_unrest, random);
    for (Place& at : shape) {
      at.x += (m_way % 2 == 0 ? -0.5 : 0.5) * near;
      if (m_way >= 2)
        std::swap(at.x, at.y);
    }
    draw(shape, 0.05);
    break;
  }
  case Mark::Scribble: {
    const double width = cell.width * real(random, 0.85, 1.1);
    const double step = pen.radius * real(random, 1.2, 2);
    draw(zigzag(width, 0.9 * cell.height, step, m_unrest, random), 0.08);
    break;
  }
  }
}

void Hand::tick(PaperSheet& paper, const FormRect& cell, Random& random) const {
  tickWith(m_pen, paper, cell, random);
}

void Hand::takeBack(PaperSheet& paper, const FormRect& cell, Random& random) const {
  const Place middle = {cell.x + cell.width / 2 + m_bias.x, cell.y + cell.height / 2 + m_bias.y};
  const double reach = cell.width / 2;
  const PenLine there = {{middle.x - reach, middle.y - reach / 2},
                         {middle.x + reach, middle.y - reach / 3},
                         {middle.x - reach, middle.y + reach / 3},
                         {middle.x + reach, middle.y + reach / 2}};
  if (m_pen.kind != Pen::Kind::Pencil) {
    tickWith(m_pen, paper, cell, random);
    cover(paper, there, kRubber, random);
    return;
  }
  Pen left = m_pen; // in the grooves of the paper
  left.darkness *= real(random, 0.1, 0.25);
  left.radius *= 1.2;
  tickWith(left, paper, cell, random);
  Pen smear = left; // what the eraser drew along
  smear.radius = kRubber;
  smear.darkness = real(random, 0.03, 0.1);
  smear.draw(paper, there, random);
}

void Hand::write(PaperSheet& paper, Place start, double width, double height, Random& random) const {
  const double right = start.x + width;
  for (double x = start.x; x < right;) {
    PenLine word;
    const int letters = random.between(4, 9);
    for (int letter = 0; letter < letters && x < right; ++letter) {
      const bool isTall = letter == 0 || random.chance(250);
      const double top = height * (isTall ? real(random, 1.6, 2.2) : real(random, 0.8, 1.1));
      word.push_back({x, start.y + real(random, -0.1, 0.1) * height});
      word.push_back({x + 0.45 * height, start.y - top});
      word.push_back({x + 0.5 * height, start.y - 0.4 * top});
      word.push_back({x + 0.25 * height, start.y + (random.chance(120) ? height * 0.9 : 0.0)});
      x += real(random, 0.6, 0.9) * height;
    }
    m_pen.draw(paper, word, random);
    x += height * 0.9;
  }
}

} // namespace hooptab

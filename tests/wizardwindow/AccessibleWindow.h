// What a window owes to people who don't use a mouse or don't see the screen. Adds a failure to the
// test for each thing that it lacks.
#pragma once

class QWidget;

namespace tests {

/// Every control in sight that can take the keyboard has a name and a role that says what it is, by
/// the tree that a reader of the screen reads.
void expectAccessible(QWidget& window);

/// The Tab key visits every control that can be worked, once, none twice, none outside the window,
/// and comes round; Shift-Tab goes the same way back. Of a group of choices one is visited, the one
/// that is chosen. Where the keyboard is can be seen. The keyboard is in the end where it was.
void expectTabGoesRound(QWidget& window);

} // namespace tests

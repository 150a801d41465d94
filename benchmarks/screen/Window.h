#pragma once

#include "support/Figures.h"

#include <QEvent>
#include <QWidget>

#include <vector>

namespace Bench {

inline constexpr int windowWidth = 1000;
inline constexpr int windowHeight = 700;
inline constexpr int rowPixels = 21;
inline constexpr int columnPixels = 95;

/// Paints what is due and waits until the X server has it.
void Paint();

/// Shows a widget as a window of its own and waits until it is in front and painted.
void ShowInFront(QWidget& widget, int width = windowWidth, int height = windowHeight);

/// A key of the user's, down and up, to the widget that has the focus.
void Press(int key, const QString& text = {});

/// Fails the program: it would measure something else than it says.
void Demand(bool isSo, const char* what);

/// Counts the paint events of a widget and their pixels.
class PaintCount : public QObject {
public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    int Events = 0;
    double Pixels = 0;
};

/// The seconds of each of `count` deeds, with the painting that each leads to.
template <class Deed>
std::vector<double> PaintedSeconds(int count, const Deed& deed)
{
    std::vector<double> seconds;
    for (int i = 0; i < count; ++i) {
        seconds.push_back(SecondsOf([&] {
            deed(i);
            Paint();
        }));
    }
    return seconds;
}

} // namespace Bench

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

// Somebody who plays on the windows of the offscreen platform while the CPU time is taken that an act costs.
namespace brindor::bench {

// CPU time of this process so far, in milliseconds.
double cputime();

// Acts on the window in front each time it has been painted and all events are worked off.
class Person : public QObject {
public:
    // `act` gets the window, and in `cost` the CPU time in milliseconds from the start of the act before, or of the
    // Person, until the window was painted and nothing was left to do. It may open windows that wait.
    explicit Person(std::function<void(QWidget& window, double cost)> act);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arm();
    void blocking();
    void next();

    std::function<void(QWidget&, double)> act_;
    const QWidget* painted_ = nullptr; // in front, as it was when something of it was painted; compared only
    double began_ = 0;
    double cost_ = 0; // 0 until the window in front is ready
};

// Clicks the left mouse button in the middle of the control of that name.
void click(QWidget& window, const std::string& control);

// The value below which that part (0 to 1) of the values lie; 0 of none.
double quantile(std::vector<double> values, double part);

// Makes the application for windows that nobody sees, as the game makes its own, and runs `program` in it.
int runoffscreen(int argc, char** argv, const std::function<void()>& program);

} // namespace brindor::bench

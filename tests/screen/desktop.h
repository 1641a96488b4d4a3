// The whole program on a real display: what a window manager makes of its windows, and real keys
// and clicks on them.
#pragma once

#include "support/program.h"

#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>

namespace pixano::test {

/// What a program prints, while the windows go on.
inline QString Output(const QString& program, const QStringList& arguments)
{
    constexpr int Patience = 10000;
    QProcess process;
    process.start(program, arguments);
    const auto ended = [&] { return process.state() == QProcess::NotRunning; };
    EXPECT_TRUE(QTest::qWaitFor(ended, Patience)) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// Keys pressed and clicks made as by a person at the display.
inline void Do(const QString& commands)
{
    Output("xdotool", commands.split(' '));
}

/// The ids of windows in a property of the root window, in its order.
inline std::vector<WId> Windows(const QString& property)
{
    const QString told = Output("xprop", {"-root", property});
    std::vector<WId> ids;
    for (const QString& id : told.mid(told.indexOf('#') + 1).split(','))
        ids.push_back(id.trimmed().toULongLong(nullptr, 0));
    return ids;
}

inline QString Id(const QWidget& window)
{
    return QString::number(window.winId());
}

class Desktop : public Program {
  protected:
    static constexpr int TimeToAnswer = 150;

    Desktop()
    {
        EXPECT_TRUE(ComesToHold([this] { return IsActive(session.form1); }));
    }

    static bool ComesToHold(const std::function<bool()>& state)
    {
        constexpr int Patience = 4000;
        return QTest::qWaitFor(state, Patience);
    }
    /// Stays so for as long as a window manager takes to answer.
    static bool Stays(const std::function<bool()>& state)
    {
        return ComesToHold(state) && !QTest::qWaitFor([&] { return !state(); }, TimeToAnswer);
    }
    /// The same where it may have held before the window manager was asked for what could end it.
    static bool StaysOnceAnswered(const std::function<bool()>& state)
    {
        QTest::qWait(TimeToAnswer);
        return Stays(state);
    }

    static bool IsActive(const QWidget& window)
    {
        return Windows("_NET_ACTIVE_WINDOW").front() == window.winId() && window.isActiveWindow();
    }
    static void Activate(QWidget& window)
    {
        Do("windowactivate --sync " + Id(window));
        EXPECT_TRUE(ComesToHold([&] { return IsActive(window); }))
            << window.objectName().toStdString();
    }
    /// Whether the window lies above the other one.
    static bool IsAbove(const QWidget& window, const QWidget& other)
    {
        const std::vector<WId> stack = Windows("_NET_CLIENT_LIST_STACKING");
        return std::ranges::find(stack, window.winId()) > std::ranges::find(stack, other.winId());
    }
    /// Whether the window manager takes a window that raises itself for one that wants the focus.
    static bool RaisesWithFocus()
    {
        const WId check = Windows("_NET_SUPPORTING_WM_CHECK").front();
        return Output("xprop", {"-id", QString::number(check), "_NET_WM_NAME"}).contains("Xfwm4");
    }
    /// Puts the window above the other one. One that has the focus with it does not stay there.
    static void Cover(const QWidget& covered, const QWidget& window)
    {
        Do("windowraise " + Id(window));
        EXPECT_TRUE(RaisesWithFocus() || ComesToHold([&] { return IsAbove(window, covered); }));
    }
    static bool IsIconic(const QWidget& window)
    {
        return Output("xprop", {"-id", Id(window), "WM_STATE"}).contains("Iconic");
    }
    /// The palette, which has no button for it, is left alone by some window managers.
    static void Minimise(const QWidget& window)
    {
        constexpr int Answer = 1000;
        Do("windowminimize " + Id(window));
        const bool done =
            QTest::qWaitFor([&] { return IsIconic(window) && window.isMinimized(); }, Answer);
        EXPECT_TRUE(done || !window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    }
    /// Where the inside of the window begins, as the display tells it: the toolkit may not know yet
    /// what frame it was given.
    static QPoint OriginOf(const QWidget& window)
    {
        static const QRegularExpression corner(
            R"(Absolute upper-left X:\s*(-?\d+)\s*Absolute upper-left Y:\s*(-?\d+))");
        const auto found = corner.match(Output("xwininfo", {"-id", Id(window)}));
        EXPECT_TRUE(found.hasMatch());
        return {found.captured(1).toInt(), found.captured(2).toInt()};
    }
    /// Whether it stands below its screen's upper edge with its title, where it may have to be
    /// brought, and the toolkit knows.
    static bool IsPlaced(const QWidget& asking)
    {
        const QWindow& window = *asking.windowHandle();
        return !window.frameMargins().isNull() &&
               window.framePosition().y() >= window.screen()->availableGeometry().top() &&
               OriginOf(asking) == window.position();
    }
    static void ClickAt(QPoint place)
    {
        Do(QString("mousemove %1 %2 click 1").arg(place.x()).arg(place.y()));
    }
    /// Opens a picture of that size, and waits for its windows.
    void OpenSized(int width, int height)
    {
        Open(QString("%1x%2.bmp").arg(width).arg(height), Varied(width, height));
        WaitForWindows();
    }
    void WaitForWindows()
    {
        const auto shown = [](const QWidget& window) {
            return window.windowHandle()->isExposed() &&
                   !window.windowHandle()->frameMargins().isNull();
        };
        EXPECT_TRUE(Stays([&] {
            return shown(session.form2) && shown(session.form9) && shown(session.form10) &&
                   !FocusIsKeptFrom(session.form9) && !FocusIsKeptFrom(session.form10);
        }));
    }

    /// Whatever the program asks or tells by boxes and file dialogs, each in its turn.
    static std::vector<std::function<void()>> Questions(Dialogs& real)
    {
        return {
            [&] { real.Ask(BoxIcon::Question, "Messaggio!", "Salvare?"); },
            [&] { real.Tell(BoxIcon::Exclamation, "Attenzione!", "Fatto."); },
            [&] { real.AskOpenName(QDir::currentPath()); },
            [&] { real.AskSaveName(QDir::currentPath(), {}); },
        };
    }

    std::vector<QWidget*> Companions() { return {&session.form2, &session.form9, &session.form10}; }
};

}  // namespace pixano::test

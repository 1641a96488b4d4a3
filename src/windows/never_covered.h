// Keeps small windows in reach when larger ones come to the front. Knows not what they show.
#pragma once

#include "windows/stacking.h"

#include <QObject>
#include <QWidget>

#include <vector>

namespace pixano {

/// Whenever one of the larger windows comes to the front, moves or grows, the small ones that less
/// than half would be seen of come with it; where it is maximised, they leave its buttons free. The
/// windows outlive this.
class NeverCovered : public QObject {
    Q_OBJECT

  public:
    NeverCovered(std::vector<QWidget*> small, std::vector<QWidget*> large);

    /// Puts one of the larger windows just above another one, if it lies below that. The focus
    /// stays where it is.
    void BringAbove(QWidget& lower, const QWidget& upper) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void RaiseCovered() const;
    /// Moves the small windows off the title of a maximised window: they lie above it, and it has
    /// its buttons there.
    void LeaveTitleFree(const QWidget& maximised);
    void LeaveTitlesFree();
    void ReturnToPlaces();

    struct GivenWay {
        QWidget* window;
        QPoint from;
        QPoint to;
    };

    std::vector<QWidget*> small_;
    std::vector<QWidget*> large_;
    std::vector<GivenWay> givenWay_;
    Stacking stacking_;
};

}  // namespace pixano

// How a second start reaches the running program: a private socket in the data folder. Knows
// nothing of what is done then.
#pragma once

#include "files/descriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <memory>

namespace pixano {

/// Asks the program that runs on the data folder to come forward and, unless `picture` is empty, to
/// open that absolute path. False when it does not answer within two seconds.
bool HandOver(const QString& folder, const QString& picture);

/// Answers second starts. Only its own user is heard, and nothing but a path or the wish that the
/// program come forward.
class SecondStarts : public QObject {
    Q_OBJECT

  public:
    /// Listens in the data folder, which nobody else may be doing. Where that is not possible,
    /// nobody is heard.
    explicit SecondStarts(const QString& folder);
    ~SecondStarts() override;
    SecondStarts(const SecondStarts&) = delete;
    SecondStarts& operator=(const SecondStarts&) = delete;
    /// From now on nobody is heard.
    void StopListening();

  signals:
    /// Another start wants that picture opened; empty when the program is only to come forward.
    void Called(const QString& picture);

  private:
    void Answer();

    Descriptor folder_;
    Descriptor socket_;
    std::unique_ptr<QSocketNotifier> heard_;
};

}  // namespace pixano

// How libjpeg's errors leave it: kept, and told in Italian afterwards. Knows no picture.
#pragma once

#include "pictures/guarded_calls.h"

#include <cstddef>
#include <cstdio>
#include <string>

#include <jpeglib.h>

namespace pixano {

/// The error manager of one libjpeg object, which must outlive it. Nothing is printed.
class JpegErrors : public jpeg_error_mgr {
  public:
    JpegErrors();
    JpegErrors(const JpegErrors&) = delete;
    JpegErrors& operator=(const JpegErrors&) = delete;

    static JpegErrors& Of(j_common_ptr jpeg) { return *static_cast<JpegErrors*>(jpeg->err); }

    /// Runs a step of libjpeg's; false when an error ended it.
    template <class Step>
    bool Run(Step&& step)
    {
        return calls_.Run(step);
    }
    /// Ends the running step; `reason` becomes the text of `Reason`.
    [[noreturn]] void Fail(const char* reason);
    /// Why the last step ended: the rest of an Italian sentence.
    std::string Reason() const;

    /// Called for each warning, with its code.
    void (*onWarning)(j_common_ptr jpeg, int code) = nullptr;

  private:
    static void Exit(j_common_ptr jpeg);
    static void Emit(j_common_ptr jpeg, int level);

    GuardedCalls calls_;
    const char* reason_ = nullptr;
};

}  // namespace pixano

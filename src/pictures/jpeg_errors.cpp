#include "pictures/jpeg_errors.h"

#include "files/system_reason.h"
#include "pictures/picture_size.h"

#include <cerrno>

#include <jerror.h>

namespace pixano {

JpegErrors::JpegErrors() : jpeg_error_mgr{}
{
    jpeg_std_error(this);
    error_exit = Exit;
    emit_message = Emit;
    output_message = [](j_common_ptr) {};
}

void JpegErrors::Fail(const char* reason)
{
    reason_ = reason;
    calls_.Leave();
}

std::string JpegErrors::Reason() const
{
    if (reason_ != nullptr) return reason_;
    switch (msg_code) {
    case JERR_OUT_OF_MEMORY:
        return SystemReason(ENOMEM);
    case JERR_IMAGE_TOO_BIG:
        return "l'immagine è troppo grande (più di " + std::to_string(JPEG_MAX_DIMENSION) +
               " pixel per lato): " + LongestSideText();
    case JERR_EMPTY_IMAGE:
        return "le misure dell'immagine non sono valide";
    case JERR_BAD_PRECISION:
    case JERR_SOF_UNSUPPORTED:
    case JERR_CONVERSION_NOTIMPL:
    case JERR_NOT_COMPILED:
    case JERR_ARITH_NOTIMPL:
        return "questo tipo di JPEG non è previsto";
    default:
        return "il file JPEG è danneggiato";
    }
}

void JpegErrors::Exit(j_common_ptr jpeg)
{
    Of(jpeg).calls_.Leave();
}

void JpegErrors::Emit(j_common_ptr jpeg, int level)
{
    const JpegErrors& errors = Of(jpeg);
    if (level < 0 && errors.onWarning != nullptr) errors.onWarning(jpeg, errors.msg_code);
}

}  // namespace pixano

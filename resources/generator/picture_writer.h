// Pictures into files, the same bytes at every run. Knows no drawing.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace pixano::art {

/// All of these throw std::runtime_error, naming the file, when it cannot be written.
void WriteJpeg(const QImage& picture, const QString& path, int quality);
void WritePng(const QImage& picture, const QString& path);
/// A GIF of one frame. Pixels less than half opaque become transparent; colours are rounded as
/// little as a table of 255 entries allows.
void WriteGif(const QImage& picture, const QString& path);
void WriteBytes(const QByteArray& bytes, const QString& path);

}  // namespace pixano::art

#pragma once
#include <QByteArray>
#include <QSize>
#include <optional>

/// The small picture that cameras put into a JPEG file's EXIF block.
struct EmbeddedPreview {
    QByteArray jpeg;     ///< a JPEG stream
    int orientation = 1; ///< that of the whole file, 1…8 as EXIF counts
    QSize imageSize;     ///< of the whole picture as it is stored; empty when the head does not tell
};

/// How much of a file embeddedPreviewOfJPEG wants to see.
inline constexpr qint64 kJPEGHeadLength = 160 * 1024;

/// The preview in the first bytes of a JPEG file, kJPEGHeadLength of them or the whole file; nothing where
/// there is none or where it is damaged. Any thread.
std::optional<EmbeddedPreview> embeddedPreviewOfJPEG(const QByteArray& head);

/// The orientation of the picture that an EXIF block (a TIFF structure) belongs to; 1 where it does not tell.
/// Any thread.
int orientationInEXIF(const QByteArray& block);

/// Whether an EXIF block (a TIFF structure) anywhere in @p file, be it that of an embedded preview, has a
/// directory of GPS tags that says anything but its own version. @p file is the whole of a JPEG, TIFF, PNG or
/// raw file. Any thread.
bool tellsPosition(const QByteArray& file);

#pragma once
#include <QImage>
#include <QObject>
#include <filesystem>
#include <map>
#include <vector>

/// The pictures of a slide show, decoded on other threads, at most two at a time: those that are wished for
/// are kept, so that the next photo is there before its turn. Main thread.
class SlideShowPictures : public QObject {
    Q_OBJECT
public:
    struct Picture {
        QImage image;    ///< upright, in sRGB, as large as the frame allows; null where there is none
        QString problem; ///< why there is none
    };

    explicit SlideShowPictures(QObject* parent) : QObject(parent) {}

    /// What shall be at hand, the most urgent one first, for a frame of @p size pixels. Other pictures, and
    /// those for other frames, are forgotten.
    void setWishes(std::vector<std::filesystem::path> files, const QSize& size);
    /// Null as long as the picture is being made, or is not wished for.
    const Picture* picture(const std::filesystem::path& file) const;

signals:
    void arrived(); ///< another picture

private:
    void begin();
    void keep(const std::filesystem::path& file, const QSize& size, Picture made);

    QSize frame;
    std::vector<std::filesystem::path> wishes;
    std::map<std::filesystem::path, Picture> pictures; // of the wishes, for the frame
    std::vector<std::pair<std::filesystem::path, QSize>> underWay;
};

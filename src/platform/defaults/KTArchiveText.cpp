#include "platform/defaults/KTArchiveText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace {

QJsonValue json(const KTValue& value) {
    if (auto list = value.list()) {
        QJsonArray array;
        for (const KTValue& element : *list)
            array.append(json(element));
        return array;
    }
    if (auto dictionary = value.dictionary()) {
        QJsonObject object;
        for (const auto& [key, element] : *dictionary)
            object.insert(QString::fromStdString(key), json(element));
        return object;
    }
    if (auto flag = value.flag())
        return *flag;
    if (auto integer = value.integer())
        return QJsonValue(qint64(*integer));
    if (auto decimal = value.decimal())
        return decimal->toDouble();
    if (!value.isSomething())
        return {};
    return QString::fromStdString(value.description());
}

KTValue number(const QJsonValue& value) {
    double asDouble = value.toDouble();
    if (asDouble == std::floor(asDouble) && std::abs(asDouble) < 9e18)
        return std::int64_t(value.toInteger());
    return KTDecimal::fromDouble(asDouble);
}

KTValue valueOf(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return number(value);
    case QJsonValue::String:
        return value.toString().toStdString();
    case QJsonValue::Array: {
        KTValue::List list;
        for (const QJsonValue& element : value.toArray())
            list.push_back(valueOf(element));
        return list;
    }
    case QJsonValue::Object: {
        KTValue::Dictionary dictionary;
        QJsonObject object = value.toObject();
        for (auto element = object.begin(); element != object.end(); ++element)
            dictionary.emplace(element.key().toStdString(), valueOf(element.value()));
        return dictionary;
    }
    default:
        return KTValue::null();
    }
}

} // namespace

std::string KTArchiveText(const KTValue& value) {
    // A document's root must be a list or a dictionary, so the value travels in a list of one.
    QByteArray text = QJsonDocument(QJsonArray{json(value)}).toJson(QJsonDocument::Compact);
    return text.mid(1, text.size() - 2).toStdString();
}

KTValue KTValueFromArchiveText(std::string_view text) {
    QByteArray wrapped = "[" + QByteArray(text.data(), qsizetype(text.size())) + "]";
    QJsonArray array = QJsonDocument::fromJson(wrapped).array();
    return array.size() == 1 ? valueOf(array.first()) : KTValue();
}

#include "cli/ElementsJSON.h"

#include <QJsonObject>

namespace tessara {

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

void insertText(QJsonObject& object, const QString& key,
                const std::optional<std::string_view>& value)
{
    if (value)
        object[key] = text(*value);
}

QJsonArray fieldsJSON(std::span<const Field> fields)
{
    QJsonArray array;
    for (const Field& field : fields) {
        QJsonObject object;
        insertText(object, QStringLiteral("fieldName"), field.fieldName);
        insertText(object, QStringLiteral("fieldSubfieldName"), field.fieldSubfieldName);
        insertText(object, QStringLiteral("fieldValue"), field.fieldValue);
        insertText(object, QStringLiteral("fieldNotes"), field.fieldNotes);
        if (field.fieldSubfields)
            object[QStringLiteral("fieldSubfields")] = fieldsJSON(*field.fieldSubfields);
        array.append(object);
    }
    return array;
}

} // namespace

QJsonArray elementsJSON(const std::vector<TSInfoElement>& elements)
{
    QJsonArray array;
    for (const TSInfoElement& element : elements) {
        const QJsonArray fields = fieldsJSON(element.fields());
        array.append(QJsonObject{
            {QStringLiteral("ieID"), element.ieID()},
            {QStringLiteral("ieLength"), static_cast<qint64>(element.ieLength())},
            {QStringLiteral("ieName"), text(element.ieName())},
            {QStringLiteral("ieSummary"), text(element.ieSummary())},
            {QStringLiteral("ieIdentifier"), text(element.ieIdentifier())},
            {QStringLiteral("ieDescription"), text(element.ieDescription())},
            {QStringLiteral("fields"), fields},
        });
    }
    return array;
}

} // namespace tessara

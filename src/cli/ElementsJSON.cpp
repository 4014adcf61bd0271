#include "cli/ElementsJSON.h"

#include "elements/FieldVisit.h"
#include "foundation/Utf8.h"

#include <QJsonObject>

namespace tessara {

namespace {

void insertText(QJsonObject& object, const QString& key, FieldText value)
{
    if (value)
        object[key] = *textFromUtf8(*value);
}

QJsonObject fieldJSON(const Field& field)
{
    QJsonObject object;
    insertText(object, QStringLiteral("fieldName"), field.fieldName);
    insertText(object, QStringLiteral("fieldSubfieldName"), field.fieldSubfieldName);
    insertText(object, QStringLiteral("fieldValue"), field.fieldValue);
    insertText(object, QStringLiteral("fieldNotes"), field.fieldNotes);
    if (field.fieldSubfields) {
        QJsonArray subfields;
        forEachSubfield(field, [&](const Field& row) { subfields.append(fieldJSON(row)); });
        object[QStringLiteral("fieldSubfields")] = subfields;
    }
    return object;
}

} // namespace

QJsonArray elementsJSON(const std::vector<TSInfoElement>& elements)
{
    QJsonArray array;
    for (const TSInfoElement& element : elements) {
        QJsonArray fields;
        for (const Field& field : element.fields())
            fields.append(fieldJSON(field));
        array.append(QJsonObject{
            {QStringLiteral("ieID"), element.ieID()},
            {QStringLiteral("ieLength"), static_cast<qint64>(element.ieLength())},
            {QStringLiteral("ieName"), *textFromUtf8(element.ieName())},
            {QStringLiteral("ieSummary"), *textFromUtf8(element.ieSummary())},
            {QStringLiteral("ieIdentifier"), *textFromUtf8(element.ieIdentifier())},
            {QStringLiteral("ieDescription"), *textFromUtf8(element.ieDescription())},
            {QStringLiteral("fields"), fields},
        });
    }
    return array;
}

} // namespace tessara

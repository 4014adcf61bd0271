#include "cli/ElementsJSON.h"

#include "elements/FieldVisit.h"

#include <QJsonObject>
#include <QStringDecoder>

namespace tessara {

namespace {

QString text(std::string_view utf8)
{
    // A mark of the byte order is a character of a name as any other.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

void insertText(QJsonObject& object, const QString& key, FieldText value)
{
    if (value)
        object[key] = text(*value);
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

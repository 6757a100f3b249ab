#include "engine/scores/record.h"

namespace varnello {

bool NumberField::Take(FieldReader& reader) {
    Quoted = reader.Quoted(Text);
    return Quoted || reader.Digits(Digits);
}

GameNumber NumberField::Number() const {
    return Quoted ? GameNumber::Text(std::string(Text))
                  : GameNumber::Number(static_cast<double>(Digits));
}

std::string ScoreLine(const ScoreRecord& record) {
    return QuotedField(record.Date) + ',' + QuotedField(record.Game) + ',' + record.GameNo.Field() +
           ',' + std::to_string(record.Time) + ',' + std::to_string(record.Moves) + ',' +
           std::to_string(record.Score) + ',' + std::to_string(record.Status);
}

std::optional<ScoreFields> ReadScoreLine(std::string_view line) {
    FieldReader reader(line);
    ScoreFields fields;
    const bool sound = reader.Quoted(fields.Date) && reader.Comma() && reader.Quoted(fields.Game) &&
                       reader.Comma() && fields.GameNo.Take(reader) && reader.Comma() &&
                       reader.Whole(fields.Time) && reader.Comma() && reader.Whole(fields.Moves) &&
                       reader.Comma() && reader.Whole(fields.Score) && reader.Comma() &&
                       reader.Whole(fields.Status) && reader.AtEnd();
    return sound ? std::optional{fields} : std::nullopt;
}

}  // namespace varnello

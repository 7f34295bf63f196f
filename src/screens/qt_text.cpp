#include "screens/qt_text.h"

#include "core/text.h"

namespace zefirondo::screens {

QString ToQt(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string FromQt(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

QString ToField(std::string_view text) {
  QString field = ToQt(text);
  if (!field.contains(u'\r')) return field;
  return field.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

std::string FromField(const QString& text) {
  if (!text.contains(u'\n')) return FromQt(text);
  return FromQt(QString(text).replace(u'\n', QStringLiteral("\r\n")));
}

int ToFieldPlace(std::string_view text, std::size_t character) {
  return static_cast<int>(ToField(text.substr(0, ByteOffset(text, character))).size());
}

std::size_t FromFieldPlace(const QString& field, int place) { return CharacterCount(FromField(field.left(place))); }

QString Spoken(std::string_view caption) {
  QString words = ToQt(caption);
  words.replace(QStringLiteral("&&"), QStringLiteral("\u0001")).remove(u'&').replace(u'\u0001', u'&');
  return words.trimmed();
}

}  // namespace zefirondo::screens

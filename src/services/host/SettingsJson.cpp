#include "services/host/SettingsJson.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include "services/host/StandIns.h"

namespace tagsmith {
namespace {

QString ToQString(std::string_view bytes) { return QString::fromStdString(ToStandIns(bytes)); }

std::string FromQString(const QString& text) { return FromStandIns(text.toUtf8().toStdString()); }

// Calls `visit` with each name and value of an object; whatever else `value` is counts as damage.
template <class Visit>
void ForEachMember(const QJsonValue& value, bool& damaged, Visit visit) {
  damaged = damaged || !value.isObject();
  const QJsonObject object = value.toObject();
  for (auto member = object.begin(); member != object.end(); ++member) {
    visit(FromQString(member.key()), QJsonValue(*member));
  }
}

}  // namespace

std::string FormatSettings(const SettingsTable& settings) {
  std::map<std::string, std::map<std::string, QJsonObject>> applications;
  for (const auto& [name, text] : settings) {
    applications[name.application][name.section].insert(ToQString(name.key), ToQString(text));
  }
  QJsonObject root;
  for (const auto& [application, sections] : applications) {
    QJsonObject object;
    for (const auto& [section, keys] : sections) object.insert(ToQString(section), keys);
    root.insert(ToQString(application), object);
  }
  return QJsonDocument(root).toJson().toStdString();
}

ParsedSettings ParseSettings(std::string_view json) {
  ParsedSettings parsed;
  if (json.empty()) return parsed;
  const QJsonDocument document = QJsonDocument::fromJson(
      QByteArray::fromRawData(json.data(), static_cast<qsizetype>(json.size())));
  const QJsonValue root = document.isObject() ? QJsonValue(document.object()) : QJsonValue();
  bool& damaged = parsed.damaged;
  ForEachMember(root, damaged, [&](const std::string& application, const QJsonValue& sections) {
    ForEachMember(sections, damaged, [&](const std::string& section, const QJsonValue& keys) {
      ForEachMember(keys, damaged, [&](const std::string& key, const QJsonValue& text) {
        if (text.isString()) {
          parsed.settings[{application, section, key}] = FromQString(text.toString());
        } else {
          damaged = true;
        }
      });
    });
  });
  return parsed;
}

}  // namespace tagsmith

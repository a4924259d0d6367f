#pragma once
#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include <optional>

namespace melvora {

/// One run as the module records it.
struct ResultRecord {
    struct Answer {
        bool right = false;
        QString scale;
        QString seconds;  ///< "" when the record does not say
    };
    struct Lesson {
        QString scale;
        QList<Answer> answers;
    };

    QString program;
    QString user;
    QString exercise;
    QString description;
    QString timestamp;
    QList<QPair<QString, QString>> settings;  ///< key and value
    QList<Lesson> lessons;

    int rightFirst() const;
    int answered() const;
};

/// Reads the XML text of a record; nothing when it is not well formed or no record.
std::optional<ResultRecord> parseResultRecord(const QByteArray& xml);

}  // namespace melvora

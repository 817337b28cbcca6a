// Where Save As writes: to a path in lower case, whose folder may not be there.
#pragma once

#include <QCoreApplication>

#include <optional>

class QWidget;

class SaveTarget {
    Q_DECLARE_TR_FUNCTIONS(SaveTarget)

public:
    /// What happens where the folder in lower case is missing; asked unless the user wanted no more questions.
    enum class Answer { Ask, Make, Keep };
    static Answer standingAnswer();
    static void setStandingAnswer(Answer answer);

    /// The path that is written for the one that was chosen, as far as that is known without a question.
    static QString of(const QString& chosen, const QString& formatName);
    /// The same when the user has been asked about a missing folder, or was before and wants no more questions. The
    /// folder has been made then, if that was the answer. Nothing when the user cancels.
    static std::optional<QString> asked(QWidget* window, const QString& chosen, const QString& formatName);
};

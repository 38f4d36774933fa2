#pragma once

#include "Platform/preferences/Preferences.h"

#include <QtCore/QObject>

namespace quillmere {

/// A domain of preferences and the news that it changed, for everyone who shows some of it. One a
/// domain, because it takes the domain's only listener. Main thread.
class PreferencesFollower : public QObject {
    Q_OBJECT

public:
    /// `domain` must outlive the object. Changes by other programs are told of when the owner of
    /// the domain lets it process them.
    explicit PreferencesFollower(platform::Preferences& domain, QObject* parent = nullptr);
    ~PreferencesFollower() override;

    [[nodiscard]] platform::Preferences& domain() const { return domain_; }

signals:
    /// Something in the domain changed.
    void changed();

private:
    platform::Preferences& domain_;
};

} // namespace quillmere

#pragma once
// The widgets of the date chooser.

#include "input/date_97.h"
#include "ui/vue/vue.h"

class QCalendarWidget;
class QLabel;

namespace agenda {

class Date97Vue : public ui::VueModale {
public:
    explicit Date97Vue(Date97& logique);

private:
    void montre() override;

    Date97& l_;
    QCalendarWidget* monthview1_;
    QLabel* label1_;
};

} // namespace agenda

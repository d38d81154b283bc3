// SPDX-License-Identifier: MIT
#include "ui/window/WindowUIState.h"

#include "ui_MainWindow.h"

#include <array>

namespace {

enum class Aspect { ImageCleared, Shown, ShownWithText, Spinning, Enabled, DropsAllowed };

using Outlet = QWidget *(*)(const Ui::MainWindow &);

struct Row {
    Aspect aspect;
    Outlet outlet;
    std::array<bool, 5> inState;
};

constexpr bool yes = true;
constexpr bool no = false;

#define OUTLET(name) [](const Ui::MainWindow &outlets) -> QWidget * { return outlets.name; }

// Applied from top to bottom.
// clang-format off
constexpr Row rows[] = {
    //                                                         Initial Waiting CoverSet Converting Done
    {Aspect::ImageCleared, OUTLET(movieCoverImageView),           {yes,  yes,    no,      no,       no}},
    {Aspect::Shown,        OUTLET(movieCoverImageView),           {no,   no,     yes,     yes,      yes}},
    {Aspect::Shown,        OUTLET(blackBackground),               {no,   no,     yes,     yes,      yes}},
    {Aspect::Shown,        OUTLET(dragDropImageView),             {yes,  no,     no,      no,       no}},
    {Aspect::Spinning,     OUTLET(spinner),                       {no,   yes,    no,      no,       no}},
    {Aspect::Shown,        OUTLET(dragFileHereLabel),             {yes,  no,     no,      no,       no}},
    {Aspect::Shown,        OUTLET(openFromFolderLabel),           {yes,  no,     no,      no,       no}},
    {Aspect::Shown,        OUTLET(movieNameLabel),                {no,   no,     yes,     yes,      yes}},
    {Aspect::Shown,        OUTLET(movieDurationLabel),            {no,   no,     yes,     no,       no}},
    {Aspect::Shown,        OUTLET(convertToButton),               {yes,  yes,    yes,     no,       no}},
    {Aspect::Shown,        OUTLET(progressBar),                   {no,   no,     no,      yes,      no}},
    {Aspect::Shown,        OUTLET(cancelProgressImageView),       {no,   no,     no,      yes,      no}},
    {Aspect::Shown,        OUTLET(cancelProgressButton),          {no,   no,     no,      yes,      no}},
    {Aspect::Shown,        OUTLET(convertingStatusLabel),         {no,   no,     no,      yes,      no}},
    {Aspect::Shown,        OUTLET(conversionCompleteStatusLabel), {no,   no,     no,      no,       yes}},
    {Aspect::Shown,        OUTLET(startOverButton),               {no,   no,     no,      no,       yes}},
    {Aspect::Shown,        OUTLET(openFolderImageView),           {no,   no,     no,      no,       yes}},
    {Aspect::Enabled,      OUTLET(convertToButton),               {no,   no,     yes,     yes,      yes}},
    {Aspect::DropsAllowed, OUTLET(dropAcceptor),                  {yes,  no,     yes,     no,       yes}},

    {Aspect::ShownWithText, OUTLET(refusalLabel),                 {yes,  no,     no,      no,       no}},
    {Aspect::ShownWithText, OUTLET(anotherFormatLabel),           {yes,  no,     no,      no,       no}},
    {Aspect::ShownWithText, OUTLET(logLabel),                     {yes,  no,     no,      no,       no}},
    {Aspect::ShownWithText, OUTLET(againLabel),                   {yes,  no,     no,      no,       no}},
    {Aspect::ShownWithText, OUTLET(factsLabel),                   {no,   no,     yes,     no,       no}},
    {Aspect::ShownWithText, OUTLET(leftOutLabel),                 {no,   no,     yes,     no,       no}},
    {Aspect::ShownWithText, OUTLET(copyCommandLabel),             {no,   no,     yes,     no,       no}},
    {Aspect::Shown,         OUTLET(workLabel),                    {no,   no,     no,      yes,      no}},
    {Aspect::ShownWithText, OUTLET(secondTryLabel),               {no,   no,     no,      yes,      no}},
    {Aspect::ShownWithText, OUTLET(resultLabel),                  {no,   no,     no,      no,       yes}},
    {Aspect::ShownWithText, OUTLET(remarksLabel),                 {no,   no,     no,      no,       yes}},
    {Aspect::Shown,         OUTLET(showInFolderLabel),            {no,   no,     no,      no,       yes}},
    {Aspect::Shown,         OUTLET(openResultButton),             {no,   no,     no,      no,       yes}},
};

constexpr std::array<Outlet, 5> primaryControls{
    OUTLET(openFromFolderLabel), OUTLET(dropAcceptor), OUTLET(convertToButton), OUTLET(cancelProgressButton), OUTLET(openFolderImageView)};
constexpr std::array<Outlet, 5> spokenOutlets{
    OUTLET(dragFileHereLabel), OUTLET(examiningLabel), OUTLET(movieNameLabel), OUTLET(convertingStatusLabel), OUTLET(conversionCompleteStatusLabel)};
// clang-format on

#undef OUTLET

void apply(const Row &row, const Ui::MainWindow &outlets, bool value)
{
    QWidget *view = row.outlet(outlets);
    switch (row.aspect) {
    case Aspect::ImageCleared:
        if (value)
            static_cast<ImageView *>(view)->setImage({});
        break;
    case Aspect::Shown:
        view->setHidden(!value);
        break;
    case Aspect::ShownWithText:
        view->setVisible(value && !view->property("text").toString().isEmpty());
        break;
    case Aspect::Spinning:
        static_cast<SpinningView *>(view)->setSpinning(value);
        break;
    case Aspect::Enabled:
        view->setEnabled(value);
        break;
    case Aspect::DropsAllowed:
        setAllowDragDrop(view, value);
        break;
    }
}

}

void applyWindowUIState(Ui::MainWindow &outlets, WindowUIState state)
{
    for (const Row &row : rows)
        apply(row, outlets, row.inState.at(static_cast<std::size_t>(state)));
}

QWidget *primaryControl(const Ui::MainWindow &outlets, WindowUIState state)
{
    return primaryControls.at(static_cast<std::size_t>(state))(outlets);
}

QWidget *spokenOutlet(const Ui::MainWindow &outlets, WindowUIState state)
{
    return spokenOutlets.at(static_cast<std::size_t>(state))(outlets);
}

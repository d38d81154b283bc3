// SPDX-License-Identifier: MIT
#include "ui/window/WindowUIState.h"

#include "ui_MainWindow.h"

#include <array>

namespace {

using Outlet = QWidget *(*)(const Ui::MainWindow &);

struct Row {
    void (*set)(QWidget *view, bool value);
    Outlet outlet;
    std::array<bool, 5> inState;
};

void clearImage(QWidget *view, bool value)
{
    if (value)
        static_cast<ImageView *>(view)->setImage({});
}

void show(QWidget *view, bool value) { view->setHidden(!value); }

void showWithText(QWidget *view, bool value)
{
    view->setVisible(value && !view->property("text").toString().isEmpty());
}

void spin(QWidget *view, bool value) { static_cast<SpinningView *>(view)->setSpinning(value); }

void enable(QWidget *view, bool value) { view->setEnabled(value); }

constexpr bool yes = true;
constexpr bool no = false;

#define OUTLET(name) [](const Ui::MainWindow &outlets) -> QWidget * { return outlets.name; }

// Applied from top to bottom.
// clang-format off
constexpr Row rows[] = {
    //                                                         Initial Waiting CoverSet Converting Done
    {clearImage,       OUTLET(movieCoverImageView),           {yes,  yes,    no,      no,       no}},
    {show,             OUTLET(movieCoverImageView),           {no,   no,     yes,     yes,      yes}},
    {show,             OUTLET(blackBackground),               {no,   no,     yes,     yes,      yes}},
    {show,             OUTLET(dragDropImageView),             {yes,  no,     no,      no,       no}},
    {spin,             OUTLET(spinner),                       {no,   yes,    no,      no,       no}},
    {show,             OUTLET(dragFileHereLabel),             {yes,  no,     no,      no,       no}},
    {show,             OUTLET(openFromFolderLabel),           {yes,  no,     no,      no,       no}},
    {show,             OUTLET(movieNameLabel),                {no,   no,     yes,     yes,      yes}},
    {show,             OUTLET(movieDurationLabel),            {no,   no,     yes,     no,       no}},
    {show,             OUTLET(convertToButton),               {yes,  yes,    yes,     no,       no}},
    {show,             OUTLET(progressBar),                   {no,   no,     no,      yes,      no}},
    {show,             OUTLET(cancelProgressImageView),       {no,   no,     no,      yes,      no}},
    {show,             OUTLET(cancelProgressButton),          {no,   no,     no,      yes,      no}},
    {show,             OUTLET(convertingStatusLabel),         {no,   no,     no,      yes,      no}},
    {show,             OUTLET(conversionCompleteStatusLabel), {no,   no,     no,      no,       yes}},
    {show,             OUTLET(startOverButton),               {no,   no,     no,      no,       yes}},
    {show,             OUTLET(openFolderImageView),           {no,   no,     no,      no,       yes}},
    {enable,           OUTLET(convertToButton),               {no,   no,     yes,     yes,      yes}},
    {setAllowDragDrop, OUTLET(dropAcceptor),                  {yes,  no,     yes,     no,       yes}},

    {show,             OUTLET(spinner),                       {no,   yes,    no,      no,       no}},
    {show,             OUTLET(examiningLabel),                {no,   yes,    no,      no,       no}},
    {show,             OUTLET(stopExaminingButton),           {no,   yes,    no,      no,       no}},
    {showWithText,     OUTLET(refusalLabel),                  {yes,  no,     no,      no,       no}},
    {showWithText,     OUTLET(anotherFormatLabel),            {yes,  no,     no,      no,       no}},
    {showWithText,     OUTLET(logLabel),                      {yes,  no,     no,      no,       no}},
    {showWithText,     OUTLET(againLabel),                    {yes,  no,     no,      no,       no}},
    {showWithText,     OUTLET(factsLabel),                    {no,   no,     yes,     no,       no}},
    {showWithText,     OUTLET(leftOutLabel),                  {no,   no,     yes,     no,       no}},
    {showWithText,     OUTLET(copyCommandLabel),              {no,   no,     yes,     no,       no}},
    {show,             OUTLET(workLabel),                     {no,   no,     no,      yes,      no}},
    {showWithText,     OUTLET(secondTryLabel),                {no,   no,     no,      yes,      no}},
    {showWithText,     OUTLET(resultLabel),                   {no,   no,     no,      no,       yes}},
    {showWithText,     OUTLET(remarksLabel),                  {no,   no,     no,      no,       yes}},
    {show,             OUTLET(showInFolderLabel),             {no,   no,     no,      no,       yes}},
    {show,             OUTLET(openResultButton),              {no,   no,     no,      no,       yes}},
};

// Where the focus goes, and what screen readers say.
constexpr std::array<std::array<Outlet, 2>, 5> announced{ {
    {OUTLET(openFromFolderLabel),  OUTLET(dragFileHereLabel)},
    {OUTLET(dropAcceptor),         OUTLET(examiningLabel)},
    {OUTLET(convertToButton),      OUTLET(movieNameLabel)},
    {OUTLET(cancelProgressButton), OUTLET(convertingStatusLabel)},
    {OUTLET(openFolderImageView),  OUTLET(conversionCompleteStatusLabel)},
} };
// clang-format on

#undef OUTLET

}

void applyWindowUIState(const Ui::MainWindow &outlets, WindowUIState state)
{
    for (const Row &row : rows)
        row.set(row.outlet(outlets), row.inState.at(static_cast<std::size_t>(state)));
}

QWidget *primaryControl(const Ui::MainWindow &outlets, WindowUIState state)
{
    return announced.at(static_cast<std::size_t>(state)).front()(outlets);
}

QWidget *spokenOutlet(const Ui::MainWindow &outlets, WindowUIState state)
{
    return announced.at(static_cast<std::size_t>(state)).back()(outlets);
}

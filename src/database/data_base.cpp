#include "database/data_base.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "platform/files/app_folder.h"
#include "platform/qt/fields/option_paint.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("DataBase");
constexpr int kLetters = 36;  // of a name that a list has room for

constexpr const char* kCaptions[kDatabaseLists] = {"Site Data", "Velocity Data", "Material Data",
                                                   "Disposal Operations Data"};
constexpr const char* kPanelCaptions[] = {"&Accept DataBase Selection", "&Close", "&Help",
                                          "&Update DataBase"};

}  // namespace

DataBase::DataBase(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic}), record_(Project()) {
  setWindowTitle(QStringLiteral("BARVON - DataBase"));
  auto* frame = new QGroupBox(QStringLiteral("DataBase Items"), this);
  auto* rows = new QGridLayout(frame);
  rows->setColumnStretch(1, 1);
  for (int i = 0; i < kDatabaseLists; ++i) {
    QComboBox* list = Combo1(i);
    Label1(i)->setText(QLatin1String(kCaptions[i]));
    Label1(i)->setBuddy(list);
    list->setAccessibleName(Label1(i)->text());
    list->setEditable(true);
    list->lineEdit()->setAccessibleName(list->accessibleName());
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(nullptr);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(kLetters);
    rows->addWidget(Label1(i), i, 0);
    rows->addWidget(list, i, 1);
    list->installEventFilter(this);
    list->lineEdit()->installEventFilter(this);
    connect(list, &QComboBox::activated, this, [this, i] { Combo1_Click(i); });
    connect(list->lineEdit(), &QLineEdit::textEdited, this, [this, i] { Combo1_Change(i); });
  }
  auto* panels = new QHBoxLayout;
  panels->addStretch();
  for (int i = 0; i < kPanels; ++i) {
    SSPanel1(i)->setText(QLatin1String(kPanelCaptions[i]));
    panels->addWidget(SSPanel1(i));
  }
  auto* column = new QVBoxLayout(this);
  column->addWidget(frame);
  column->addStretch();
  column->addLayout(panels);
  Take_Commands({SSPanel1.begin(), SSPanel1.end()});
  Tab_Through({Combo1.begin(), Combo1.end()});
}

void DataBase::Opening() {
  const Database_Lists lists = Load_Lists(record_);
  for (int i = 0; i < kDatabaseLists; ++i) Fill(i, lists[static_cast<std::size_t>(i)]);
  Blacken_Labels();
  SSPanel1(kUpdate)->setEnabled(false);
}

void DataBase::Fill(int list, const List_Contents& contents) {
  QComboBox* combo = Combo1(list);
  combo->clear();
  for (const std::string& name : contents.names) combo->addItem(QString::fromStdString(name));
  combo->setCurrentIndex(contents.place);
  if (contents.place < 0) combo->clearEditText();
  combo->lineEdit()->setCursorPosition(0);
}

bool DataBase::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    for (int i = 0; i < kDatabaseLists; ++i) {
      if (watched == Combo1(i) || watched == Combo1(i)->lineEdit()) Combo1_Click(i);
    }
  }
  return Input_Screen::eventFilter(watched, event);
}

void DataBase::Combo1_Click(int index) {
  record_.ActiveDatabaseList = static_cast<std::int16_t>(index);
  Blacken_Labels();
  Paint_Text(Label1(index), kBlue);
}

void DataBase::Combo1_Change(int index) {
  Combo1_Click(index);
  SSPanel1(kUpdate)->setEnabled(true);
}

void DataBase::Blacken_Labels() {
  for (QLabel* label : Label1) Paint_Text(label, kBlack);
}

// Two entries may have one name: the one that was chosen counts as long as its name stands there.
List_Choice DataBase::Choice_Of(int list) const {
  const QComboBox* combo = Combo1(list);
  const QString text = combo->currentText();
  int place = combo->currentIndex();
  if (place < 0 || combo->itemText(place) != text) {
    place = combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  }
  if (place < 0) return {};
  return {text.toStdString(), place};
}

void DataBase::Command1_Click(int index) {
  if (index == kAccept) {
    Database_Choices choices;
    for (int i = 0; i < kDatabaseLists; ++i) {
      choices[static_cast<std::size_t>(i)] = Choice_Of(i);
    }
    Accept_Selection(choices, record_);
    Controls_Are_Stored();
  } else if (index == kClose) {
    Unload();
  } else if (index == kUpdate) {
    Update();
  }
}

void DataBase::Update() {
  // A letter and its accent are one letter of the files.
  const QString name = Combo1(kSites)->currentText().normalized(QString::NormalizationForm_C);
  if (!Update_Database(name.toStdString(), record_)) return;
  List_Contents sites;
  sites.names = Site_Names(Application_Folder()).value_or(std::vector<std::string>());
  sites.place = static_cast<int>(sites.names.size()) - 1;
  Fill(kSites, sites);
  SSPanel1(kUpdate)->setEnabled(false);
  // The button that had the keyboard does not take it any more.
  Combo1(kSites)->setFocus();
}

void Register_DataBase(QWidget* workspace) {
  const auto open = Fresh_Screens<DataBase>(workspace);
  Register_Screen(kScreen, [open](bool blocking, const std::string& control) {
    if (Port().board.close_input_screens()) open(blocking, control);
  });
}

}  // namespace barvon

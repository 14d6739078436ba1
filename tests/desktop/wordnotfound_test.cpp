#include "text/wordnotfound.h"

#include <QComboBox>
#include <QLabel>
#include <QListView>

#include "tests/desktop/support/desktopfixture.h"
#include "tests/support/dictionaryfiles.h"
#include "text/mlndictionary.h"

namespace morlan {
namespace {

class WordNotFoundDialog : public DesktopTest {
 protected:
  WordNotFoundDialog() {
    Write("s", BitsOf({"strona", "strony"}));
    Write("i", AutomatonOf({"strona", "strony"}));
    dictionary.File = {Path("s"), Path("i"), Path("u")};
    EXPECT_TRUE(dictionary.OpenDictionaries());
    program.DialogResult = "stronna";
    form.Dictionary = &dictionary;
  }
  ~WordNotFoundDialog() override { form.Dictionary = nullptr; }

  WordChoice Ask(std::function<void(QWidget&)> act) {
    InNextModal(std::move(act));
    program.platform.windows.ShowModal(form);
    return static_cast<WordChoice>(program.DialogChoice);
  }

  MlnDictionary dictionary{files};
  WordNotFound& form = program.forms.Get<WordNotFound>();
};

TEST_F(WordNotFoundDialog, AClickOnTheWordCopiesIt) {
  Ask([](QWidget& modal) {
    auto& word = Named<QLabel>(modal, "Word");
    EXPECT_EQ(word.text(), QStringLiteral("stronna"));
    ClickAt(word, word.rect().center());
    Settle();
    EXPECT_EQ(Named<QComboBox>(modal, "Change").currentText(), QStringLiteral("stronna"));
    PressIn(modal, Qt::Key_Escape);
  });
}

TEST_F(WordNotFoundDialog, EnterIgnoresUntilThereIsAWordToTake) {
  EXPECT_EQ(Ask([](QWidget& modal) { PressIn(Named<QComboBox>(modal, "Change"), Qt::Key_Return); }), WordChoice::Ignore);
  const WordChoice choice = Ask([](QWidget& modal) {
    TypeIn(Named<QComboBox>(modal, "Change"), QStringLiteral("strona"));
    PressIn(Named<QComboBox>(modal, "Change"), Qt::Key_Return);
  });
  EXPECT_EQ(choice, WordChoice::Change);
  EXPECT_EQ(form.Replacement, "strona");
}

TEST_F(WordNotFoundDialog, ASimilarWordIsTakenWithTheKeyboard) {
  const WordChoice choice = Ask([](QWidget& modal) {
    auto& similar = Named<QListView>(modal, "Similar");
    PressIn(similar, Qt::Key_Down);
    PressIn(similar, Qt::Key_Return);
  });
  EXPECT_EQ(choice, WordChoice::Change);
  EXPECT_EQ(form.Replacement, "strona");
}

TEST_F(WordNotFoundDialog, EscStopsTheCheck) {
  EXPECT_EQ(Ask([](QWidget& modal) { PressIn(modal, Qt::Key_Escape); }), WordChoice::Stop);
}

}  // namespace
}  // namespace morlan

// Questions answered from a queue. An unexpected question fails the test.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "document/prompts.h"

namespace brevant {

class TCFakePrompts final : public TCPrompts {
 public:
  std::deque<TCSaveAnswer> saveAnswers;
  std::deque<std::optional<std::u16string>> openAnswers;
  std::deque<std::optional<std::u16string>> saveAsAnswers;
  std::u16string lastName;

  std::deque<std::optional<std::u16string>> texts;
  // What happens while the prompt stands there, and its answer; asked before `texts`.
  std::deque<std::function<std::optional<std::u16string>(const TCTextPrompt&)>> textAnswers;
  std::u16string lastPrompt;
  std::u16string lastExample;
  std::u16string lastText;
  TCTextPromptMode lastMode = TCTextPromptMode::Property;

  using TCPaths = std::vector<std::u16string>;
  std::deque<std::optional<TCPaths>> mediaAnswers;
  TCMediaFileQuestion lastMediaQuestion;
  std::deque<bool> removeAnswers;
  std::function<void()> whileRemoveIsAsked;  // what happens while that question stands there
  std::u16string lastRemoveQuestion;

  // What the user does in the larger dialogs; true is OK.
  std::deque<std::function<bool(TCAddPlayItems&)>> setListEdits;
  std::deque<std::function<bool(TCSongPropertiesForm&)>> songEdits;

  std::optional<std::u16string> EnterText(const TCTextPrompt& prompt) override {
    lastMode = prompt.mode;
    lastPrompt = prompt.prompt;
    lastExample = prompt.example;
    lastText = prompt.text;
    if (!textAnswers.empty()) return Next(textAnswers, {})(prompt);
    return Next(texts, std::optional<std::u16string>());
  }
  TCSaveAnswer AskSaveChanges(std::u16string_view name) override {
    lastName = name;
    return Next(saveAnswers, TCSaveAnswer::Cancel);
  }
  std::optional<std::u16string> ChooseDocumentToOpen() override {
    return Next(openAnswers, std::optional<std::u16string>());
  }
  std::optional<std::u16string> ChooseDocumentToSave(std::u16string_view suggestedPath) override {
    lastName = suggestedPath;
    return Next(saveAsAnswers, std::optional<std::u16string>());
  }
  std::optional<TCPaths> ChooseMediaFiles(const TCMediaFileQuestion& question) override {
    lastMediaQuestion = question;
    return Next(mediaAnswers, std::nullopt);
  }
  bool ConfirmRemove(std::u16string_view question) override {
    lastRemoveQuestion = question;
    if (whileRemoveIsAsked) whileRemoveIsAsked();
    return Next(removeAnswers, false);
  }
  bool EditSetLists(TCAddPlayItems& form) override {
    return Next(setListEdits, {[](TCAddPlayItems&) { return false; }})(form);
  }
  bool EditSongProperties(TCSongPropertiesForm& form) override {
    return Next(songEdits, {[](TCSongPropertiesForm&) { return false; }})(form);
  }

 private:
  template <typename Answer>
  static Answer Next(std::deque<Answer>& answers, std::type_identity_t<Answer> none) {
    if (answers.empty()) {
      ADD_FAILURE() << "a question was asked that nobody expected";
      return none;
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace brevant

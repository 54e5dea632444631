#include "tarnix/properties/user_properties.h"

#include "tarnix/properties/properties_dialog.h"
#include "tarnix/properties/property_inputs.h"
#include "tarnix/settings/settings_document.h"
#include "tarnix/text/numbers.h"

namespace tarnix {

using namespace adsk::core;

namespace {

using namespace property_inputs;

// Fixed as it is, with its stray markup and its order of letters.
constexpr const char* kIncorrectCharacter =
    R"(<div style="background-color:#fefa50" align="center"><b>Incorrect char !</b><br>)"
    R"(Valid chars are only 0,1,2,3,4,5,6,7,8,9,SPACE,_,-</br><br>)"
    R"(A,B,C,D,E,F,G,H,I,J,K,L,M,N,O,P,R,Q,S,T,U,V,W,X,Y,Z</br><br>)"
    R"(a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,r,q,s,t,u,v,w,x,y,z<</br></div>)";

void deleteSelectedRow(const Ptr<TableCommandInput>& table) {
    const int row = table->selectedRow();
    if (row == -1) {
        Application::get()->userInterface()->messageBox("Select one property to delete.", "");
    } else {
        table->deleteRow(row);
    }
}

void showValid(const Ptr<TextBoxCommandInput>& message, const Ptr<CommandInput>& save) {
    save->isEnabled(true);
    message->formattedText(kSaveNotice);
}

/// The message needs a row more than the notice has, and keeps it.
void showInvalid(const Ptr<TextBoxCommandInput>& message, const Ptr<CommandInput>& save) {
    message->formattedText(kIncorrectCharacter);
    message->numRows(5);
    save->isEnabled(false);
}

Ptr<TableCommandInput> tableOf(const Ptr<InputChangedEventArgs>& eventArgs) {
    const Ptr<CommandInputs> inputs = eventArgs->inputs();
    return inputs ? inputs->itemById(kTable) : nullptr;
}

}  // namespace

void onTableButton(const Ptr<InputChangedEventArgs>& eventArgs) {
    const Ptr<TableCommandInput> table = tableOf(eventArgs);
    if (!table) {
        return;
    }
    const std::string id = eventArgs->input()->id();
    if (id == kAddRow) {
        addUserPropertyRow(table);
    } else if (id == kDeleteRow) {
        deleteSelectedRow(table);
    }
}

void addUserPropertyRow(const Ptr<TableCommandInput>& table) {
    const std::string number = decimal(addedRowCounter);
    const Ptr<StringValueCommandInput> cell = table->commandInputs()->addStringValueInput(
        "QEMA_UserProperty_" + number, "UserProperty_" + number, "");
    table->addCommandInput(cell, table->rowCount(), 0, 0, 0);
    ++addedRowCounter;
}

void onUserPropertyEdited(const Ptr<CommandInput>& input) {
    const Ptr<StringValueCommandInput> cell = input;
    if (!cell) {
        return;
    }
    const Ptr<CommandInputs> inputs = cell->commandInputs();
    const Ptr<TextBoxCommandInput> message = inputs->itemById(kMessage);
    if (!message) {
        return;
    }
    const Ptr<CommandInput> save = inputs->itemById(kSave);
    for (const char character : cell->value()) {
        if (!isValidInPropertyName(character)) {
            showInvalid(message, save);
            return;
        }
        showValid(message, save);
    }
}

bool isValidInPropertyName(char character) {
    // Not `std::isalnum`, which asks the locale.
    return character == ' ' || character == '-' || character == '_' ||
           (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
}

std::vector<std::string> collectUserProperties(const Ptr<InputChangedEventArgs>& eventArgs) {
    const Ptr<TableCommandInput> table = tableOf(eventArgs);
    std::vector<std::string> entries;
    const int rowCount = table ? table->rowCount() : 0;
    for (int row = 0; row < rowCount; ++row) {
        const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(row, 0);
        const std::string name = cell->value();
        if (!name.empty()) {
            entries.push_back("QEMA_" + name + ";" + name);
        }
    }
    return entries;
}

void saveUserProperties(const Ptr<InputChangedEventArgs>& eventArgs) {
    replaceCategoryItems(
        "iProperty", [&eventArgs] { return collectUserProperties(eventArgs); },
        MissingCategory::LeaveOut);
}

}  // namespace tarnix

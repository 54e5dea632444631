#pragma once

/// The enumerations of the user interface. They are unscoped: their enumerators are names of
/// `adsk::core` itself, and they convert to int.
namespace adsk::core {

/// How a dialog was closed.
enum DialogResults {
    DialogError = -1,  ///< it could not be shown
    DialogOK = 0,      ///< also "Retry"
    DialogCancel = 1,
    DialogYes = 2,
    DialogNo = 3,
};

/// How a command came to its end.
enum CommandTerminationReason {
    UnknownTerminationReason = 0,  ///< the command has not ended
    CompletedTerminationReason = 1,
    CancelledTerminationReason = 2,      ///< by the user, or by a change of workspace
    AbortedTerminationReason = 3,        ///< accepted by the user, but its execution failed
    PreEmptedTerminationReason = 4,      ///< another command started
    SessionEndingTerminationReason = 5,  ///< its document was left, or the host ends
};

/// How far an upload has come.
enum UploadStates {
    UploadProcessing = 0,
    UploadFinished = 1,  ///< the file is there; it may still be being converted
    UploadFailed = 2,
};

/// Where a palette is docked.
enum PaletteDockingStates {
    PaletteDockStateFloating = 0,
    PaletteDockStateTop = 1,
    PaletteDockStateBottom = 2,
    PaletteDockStateLeft = 3,
    PaletteDockStateRight = 4,
};

/// Where the user may dock a palette.
enum PaletteDockingOptions {
    PaletteDockOptionsNone = 0,
    PaletteDockOptionsToVerticalOnly = 1,
    PaletteDockOptionsToHorizontalOnly = 2,
    PaletteDockOptionsToVerticalAndHorizontal = 3,
};

/// The languages of the user interface.
enum UserLanguages {
    ChinesePRCLanguage = 0,
    ChineseTaiwanLanguage = 1,
    CzechLanguage = 2,
    EnglishLanguage = 3,
    FrenchLanguage = 4,
    GermanLanguage = 5,
    HungarianLanguage = 6,
    ItalianLanguage = 7,
    JapaneseLanguage = 8,
    KoreanLanguage = 9,
    PolishLanguage = 10,
    PortugueseBrazilianLanguage = 11,
    RussianLanguage = 12,
    SpanishLanguage = 13,
    TurkishLanguage = 14,
};

/// What a drop-down shows for each of its items.
enum DropDownStyles {
    LabeledIconDropDownStyle = 0,  ///< icon and name
    TextListDropDownStyle = 1,     ///< the name alone
    CheckBoxDropDownStyle = 2,     ///< items are selected independently of each other
};

/// The buttons of a message box, the default one first.
enum MessageBoxButtonTypes {
    OKButtonType = 0,
    OKCancelButtonType = 1,
    RetryCancelButtonType = 2,
    YesNoButtonType = 3,
    YesNoCancelButtonType = 4,
};

/// The picture of a message box.
enum MessageBoxIconTypes {
    NoIconIconType = 0,
    QuestionIconType = 1,
    InformationIconType = 2,
    WarningIconType = 3,
    CriticalIconType = 4,
};

/// The error codes of `Application::getLastError`.
enum GenericErrors {
    Ok = 0,
    UnexpectedError = 1,
    InternalValidationError = 2,
    BadApiCallError = 3,               ///< an argument that cannot be right
    UnderlyingObjectDeletedError = 4,  ///< a call on a deleted object
    OperationFailed = 5,               ///< not possible now, or not implemented
    ExpressionError = 6,
    InvalidGeometryError = 7,
    ClassSpecificError = 100,
    FunctionSpecificError = 200,
};

/// What a line of the log is about.
enum LogLevels {
    InfoLogLevel = 0,
    WarningLogLevel = 1,
    ErrorLogLevel = 2,
};

/// Where a line of the log is written.
enum LogTypes {
    FileLogType = 0,     ///< to the log file alone
    ConsoleLogType = 1,  ///< to the text window as well
};

/// The kinds of documents that a module can create.
enum DocumentTypes {
    FusionDesignDocumentType = 0,
};

/// What a `ValueInput` was created from.
enum ValueTypes {
    StringValueType = 0,
    RealValueType = 1,
    ObjectValueType = 2,
    BooleanValueType = 3,
};

/// How a table draws its cells.
enum TablePresentationStyles {
    nameValueTablePresentationStyle = 0,
    itemBorderTablePresentationStyle = 1,
    transparentBackgroundTablePresentationStyle = 2,
};

}  // namespace adsk::core

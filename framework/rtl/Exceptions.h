// The framework's exceptions. Every error that a user may see is one of these;
// programs catch Exception and show its Message.
#pragma once

#include <exception>
#include <string>
#include <utility>

// Root of the hierarchy. The message is complete, UTF-8, and meant for people:
//     throw EConvertError(Format(SInvalidInteger, {Text}));
class Exception : public std::exception {
public:
    explicit Exception(std::string Message) : FMessage(std::move(Message)) {}
    Exception(const Exception&) = default;
    Exception& operator=(const Exception&) = default;
    ~Exception() override;

    const std::string& Message() const { return FMessage; }
    // For code that can say more on the way up (which property, which line)
    // and then rethrows with "throw;".
    void SetMessage(std::string Value) { FMessage = std::move(Value); }

    // The same text; valid as long as the exception and until SetMessage.
    const char* what() const noexcept override { return FMessage.c_str(); }

private:
    std::string FMessage;
};

// Declares an exception that only differs in its name. The parent's constructor
// is inherited.
#define ORBILEX_EXCEPTION(Name, Parent)                                                                      \
    class Name : public Parent {                                                                             \
    public:                                                                                                  \
        using Parent::Parent;                                                                                \
    }

// Ends an operation without a message box.
class EAbort : public Exception {
public:
    explicit EAbort(std::string Message = "Operation aborted") : Exception(std::move(Message)) {}
};

// Numbers and conversions.
ORBILEX_EXCEPTION(EConvertError, Exception);
ORBILEX_EXCEPTION(EExternal, Exception);
ORBILEX_EXCEPTION(EExternalException, EExternal);
ORBILEX_EXCEPTION(EIntError, EExternal);
ORBILEX_EXCEPTION(EDivByZero, EIntError);
ORBILEX_EXCEPTION(ERangeError, EIntError);
ORBILEX_EXCEPTION(EIntOverflow, EIntError);
ORBILEX_EXCEPTION(EMathError, EExternal);
ORBILEX_EXCEPTION(EInvalidOp, EMathError);
ORBILEX_EXCEPTION(EZeroDivide, EMathError);
ORBILEX_EXCEPTION(EOverflow, EMathError);
ORBILEX_EXCEPTION(EUnderflow, EMathError);

// Objects, properties and lists.
ORBILEX_EXCEPTION(EInvalidCast, Exception);
ORBILEX_EXCEPTION(EVariantError, Exception);
ORBILEX_EXCEPTION(EPropertyError, Exception);
ORBILEX_EXCEPTION(EPropReadOnly, Exception);
ORBILEX_EXCEPTION(EPropWriteOnly, Exception);
ORBILEX_EXCEPTION(EListError, Exception);
ORBILEX_EXCEPTION(EBitsError, Exception);
ORBILEX_EXCEPTION(EStringListError, Exception);
ORBILEX_EXCEPTION(EComponentError, Exception);
ORBILEX_EXCEPTION(EInvalidOperation, Exception);

// Streams, files and form files.
ORBILEX_EXCEPTION(EInOutError, Exception);
ORBILEX_EXCEPTION(EStreamError, Exception);
ORBILEX_EXCEPTION(EFCreateError, EStreamError);
ORBILEX_EXCEPTION(EFOpenError, EStreamError);
ORBILEX_EXCEPTION(EFilerError, EStreamError);
ORBILEX_EXCEPTION(EReadError, EFilerError);
ORBILEX_EXCEPTION(EWriteError, EFilerError);
ORBILEX_EXCEPTION(EClassNotFound, EFilerError);
ORBILEX_EXCEPTION(EMethodNotFound, EFilerError);
ORBILEX_EXCEPTION(EInvalidImage, EFilerError);
ORBILEX_EXCEPTION(EResNotFound, Exception);
ORBILEX_EXCEPTION(EParserError, Exception);

// Forms, menus, graphics and the operating system.
ORBILEX_EXCEPTION(EMenuError, Exception);
ORBILEX_EXCEPTION(EInvalidGraphic, Exception);
ORBILEX_EXCEPTION(EInvalidGraphicOperation, Exception);
ORBILEX_EXCEPTION(EOutOfResources, Exception);
ORBILEX_EXCEPTION(EPrinter, Exception);
ORBILEX_EXCEPTION(EPackageError, Exception);
ORBILEX_EXCEPTION(ERegistryException, Exception);

// A call of the operating system that failed. ErrorCode is the system's own
// number (errno or GetLastError), 0 when unknown.
class EOSError : public Exception {
public:
    explicit EOSError(std::string Message, unsigned long ErrorCode = 0)
        : Exception(std::move(Message)), FErrorCode(ErrorCode)
    {
    }
    unsigned long ErrorCode() const { return FErrorCode; }

private:
    unsigned long FErrorCode;
};

#undef ORBILEX_EXCEPTION

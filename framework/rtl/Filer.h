// What an object sees of the form file that it is read from or written to:
// the extra properties it defines itself, such as the lines of a string list.
// The readers and writers behind this interface live in framework/streaming.
#pragma once

#include <functional>
#include <string>

#include "framework/rtl/Object.h"

class TCollection;
class TReader;
class TStream;
class TWriter;

class TFiler : public TObject {
public:
    // Declares a property that is not published. A reader calls Read when the
    // file has the property; a writer calls Write when HasData is true.
    virtual void DefineProperty(const std::string& Name, const std::function<void(TReader&)>& Read,
                                const std::function<void(TWriter&)>& Write, bool HasData) = 0;
    // The same for bytes.
    virtual void DefineBinaryProperty(const std::string& Name, const std::function<void(TStream&)>& Read,
                                      const std::function<void(TStream&)>& Write, bool HasData) = 0;
};

// Takes the values of a property one after the other. A value of another kind
// than the one asked for raises EReadError "Invalid property value".
class TReader : public TFiler {
public:
    virtual bool ReadBoolean() = 0;
    virtual int64_t ReadInteger() = 0;
    virtual double ReadFloat() = 0;
    virtual std::string ReadString() = 0;
    virtual std::string ReadIdent() = 0;
    virtual void ReadListBegin() = 0;
    virtual void ReadListEnd() = 0;
    virtual bool EndOfList() const = 0;
    // Empties Collection and fills it with the items of the next value.
    virtual void ReadCollection(TCollection& Collection) = 0;
    // The root of what is being read: the form.
    virtual TComponent* Root() const = 0;
};

class TWriter : public TFiler {
public:
    virtual void WriteBoolean(bool Value) = 0;
    virtual void WriteInteger(int64_t Value) = 0;
    virtual void WriteFloat(double Value) = 0;
    virtual void WriteString(const std::string& Value) = 0;
    virtual void WriteIdent(const std::string& Value) = 0;
    virtual void WriteListBegin() = 0;
    virtual void WriteListEnd() = 0;
    virtual void WriteCollection(const TCollection& Collection) = 0;
    virtual TComponent* Root() const = 0;
};

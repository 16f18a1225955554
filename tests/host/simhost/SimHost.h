#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/host/simhost/SimObjects.h"
#include "tests/host/simhost/SimValue.h"

// A host that behaves as the published plug-in interface says: it loads the
// plug-in with dlopen, calls REALPluginMain with its resolver, reads every
// registered declaration, and lets a test create objects and call methods by
// name with host values, defaults filled in from the declarations.  One host is
// current at a time; the plug-in stays loaded and each host registers it anew.
namespace simhost {

struct RaisedException {
    std::string className;
    std::string message;
    int64_t errorNumber = 0;
};

struct CallResult {
    Value value;
    bool raised = false;
    RaisedException exception;
};

struct HostOptions {
    // What REALGetRBVersion answers.
    double hostVersion = 2021.03;
    // Runtime functions the resolver does not know.
    std::set<std::string> missingFunctions;
};

class SimHost {
public:
    using PluginMain = void *(*)(void *(*resolver)(const char *));

    explicit SimHost(const std::string &pluginPath, HostOptions options = HostOptions());
    // A plug-in linked into the test itself, for looking at its insides.
    explicit SimHost(PluginMain main, HostOptions options = HostOptions());
    ~SimHost();
    SimHost(const SimHost &) = delete;
    SimHost &operator=(const SimHost &) = delete;

    static SimHost *current();

    // Loading and registration.
    bool loaded() const { return loadError_.empty(); }
    const std::string &loadError() const { return loadError_; }
    int announcedControlVersion() const { return controlVersion_; }
    void *pluginMainResult() const { return pluginMainResult_; }
    // The plug-in's classes in the order they were registered.
    const std::vector<SimClass *> &pluginClasses() const { return pluginClasses_; }
    SimClass *findClass(const std::string &name) const;
    std::vector<std::string> declarationErrors() const;

    // Objects and calls.  Every call reports an exception the plug-in raised.
    CallResult create(const std::string &className, std::vector<Value> args = {});
    CallResult call(const Value &self, const std::string &method, std::vector<Value> args = {});
    CallResult callShared(const std::string &className, const std::string &method,
                          std::vector<Value> args = {});
    // The overload with exactly this declaration, as a call with typed nil
    // variables picks it.
    CallResult callDeclared(const Value &self, const std::string &declaration,
                            std::vector<Value> args);
    // One declared method, with host zeros for the parameters without default.
    CallResult callWithZeros(const Value &self, const SimMethod &method);
    CallResult getProperty(const Value &self, const std::string &name);
    CallResult getSharedProperty(const std::string &className, const std::string &name);
    CallResult setSharedProperty(const std::string &className, const std::string &name,
                                 const Value &value);

    // Host values.
    Value doubles(const std::vector<double> &items);
    Value integers(const std::vector<int64_t> &items);
    Value colors(const std::vector<uint32_t> &items);
    Value strings(const std::vector<std::string> &items);
    Value memoryBlock(const std::string &bytes);
    // A Double array that says it holds count items and holds none.
    Value claimingDoubleArray(int64_t count);
    std::vector<double> doublesOf(const Value &array) const;
    std::vector<int64_t> integersOf(const Value &array) const;
    std::string bytesOf(const Value &memoryBlock) const;
    // Key and value class of each entry of a Dictionary.
    std::map<std::string, std::string> dictionaryOf(const Value &dictionary) const;
    std::string className(const Value &object) const;
    int refCount(const Value &v) const;

    // What is left: descriptions of live host objects, and the plug-in's misuse
    // of the interface (wrong element types, string data never disposed, ...).
    std::vector<std::string> liveObjects() const;
    std::vector<std::string> misuse() const;

    // The runtime, for Ref and the host functions.
    void lock(RefHeader *r);
    void unlock(RefHeader *r);
    SimObject *newObject(SimClass *cls);
    // New with no arguments, as PluginNewInstance: the zero-argument Constructor
    // runs if the class has one.
    SimObject *newInstance(SimClass *cls);
    SimString *newString(const std::string &bytes, uint32_t encoding);
    SimArray *newArray(int elementType, int64_t count);
    void registerClass(REALclassDefinition *def);
    void raise(RefHeader *exception);
    void noteMisuse(const std::string &what);
    void *resolve(const char *name);
    double hostVersion() const { return options_.hostVersion; }
    void setControlVersion(int v) { controlVersion_ = v; }
    int &openStringData() { return openStringData_; }
    SimClass *builtinClass(Builtin kind) const;

private:
    struct Candidate;
    void start(PluginMain main);
    void addBuiltinClasses();
    SimClass *addClass(const std::string &name, const std::string &superName, Builtin builtin);
    void linkClasses();
    void release(RefHeader *r);
    void destroyObject(SimObject *o);
    std::vector<const SimMethod *> methodsNamed(const SimClass *cls, const std::string &name,
                                                bool shared) const;
    CallResult callBest(SimObject *self, const std::vector<const SimMethod *> &methods,
                        std::vector<Value> &args, const std::string &what);
    CallResult invoke(SimObject *self, const SimMethod &method, std::vector<Value> &args);
    CallResult takeRaised(CallResult result);
    CallResult callProperty(SimObject *self, const SimProperty &p, const Value *set);
    Value arrayValue(SimArray *a);

    HostOptions options_;
    std::string loadError_;
    void *library_ = nullptr;
    void *pluginMainResult_ = nullptr;
    int controlVersion_ = 0;
    std::vector<std::unique_ptr<SimClass>> classes_;
    std::vector<SimClass *> pluginClasses_;
    std::map<std::string, SimClass *> byName_;
    std::map<uint64_t, RefHeader *> live_;
    uint64_t nextSerial_ = 1;
    RefHeader *pending_ = nullptr;
    int openStringData_ = 0;
    std::vector<std::string> misuse_;
};

}  // namespace simhost

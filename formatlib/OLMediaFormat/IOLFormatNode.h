#pragma once

#include "olmediaformat_export.h"

#include <memory>
#include <string>

namespace Orlimo {

class IOLError;
class IOLFormatPreset;
class IOLJsonValue;

/// A node of the format tree: the root, a category, a format, or a list of recent or custom
/// presets.
///
/// A node owns its presets and children and knows its parent weakly. Nodes are changed on the GUI
/// thread only and may be read on any thread while nothing changes them; different trees are
/// independent of each other. A node must not become a child of itself or of a node below it.
/// Wherever an index, a name or a node is not found, the result is empty or false and nothing
/// changes. Names are compared byte by byte, and the first match counts.
class OLMEDIAFORMAT_EXPORT IOLFormatNode
{
public:
    IOLFormatNode();
    IOLFormatNode(const IOLFormatNode &other);
    IOLFormatNode(IOLFormatNode &&other);
    IOLFormatNode &operator=(const IOLFormatNode &other);
    IOLFormatNode &operator=(IOLFormatNode &&other);

    /// The clone flag for a copy of the node with all its presets and its whole subtree.
    static const int CloneAll;

    /// Makes a node without name, presets and children under @p parent, which may be empty. The
    /// parent is recorded; it does not get the node as its child. Any thread; never empty.
    static std::shared_ptr<IOLFormatNode> MallocFormatNode(std::shared_ptr<IOLFormatNode> parent);

    /// Makes the tree that @p json holds, in the layout that ToJsonValue() writes. Empty, and
    /// nothing is logged, if @p json is empty or breaks any rule of that layout. Any thread.
    static std::shared_ptr<IOLFormatNode> MallocFormatNode(
            const std::shared_ptr<const IOLJsonValue> &json);

    /// As above; on failure also sets @p error, where it is not null, to the JSON pointer (RFC
    /// 6901) of the fault and its reason. On success it is left alone.
    static std::shared_ptr<IOLFormatNode> MallocFormatNode(
            const std::shared_ptr<const IOLJsonValue> &json,
            std::shared_ptr<const IOLError> *error);

    /// Returns the recorded parent, empty where there is none or it is gone.
    virtual std::shared_ptr<IOLFormatNode> Parent() const = 0;
    /// Records @p parent, or none where it is empty.
    virtual void SetParent(std::shared_ptr<IOLFormatNode> parent) = 0;

    /// Returns the artwork face id of the node's icon, 0 where none was set.
    virtual int FaceID() const = 0;
    /// Sets the artwork face id of the node's icon.
    virtual void SetFaceID(int faceID) = 0;

    /// Returns the node's name (UTF-8): for a format node, the format's name.
    virtual std::string Name() const = 0;
    /// Returns the node's description text (UTF-8).
    virtual std::string Description() const = 0;
    /// Sets the node's name (UTF-8).
    virtual void SetName(std::string name) = 0;
    /// Sets the node's description text (UTF-8).
    virtual void SetDescription(std::string description) = 0;

    /// Returns a copy without a parent. With the flag value CloneAll it has copies of all presets
    /// and of the whole subtree; with any other value only the name, the description and the face
    /// id. Copying a subtree takes stack for each level; those that a description can hold are
    /// safe.
    virtual std::shared_ptr<IOLFormatNode> Clone(int flags) const = 0;

    /// Returns the node and its subtree as JSON, readable by MallocFormatNode() as long as the tree
    /// is no deeper than a JSON parser accepts (about 510 levels), of which no more than a few
    /// thousand may be written. Bytes of texts that are not UTF-8 are replaced. Never empty.
    virtual std::shared_ptr<const IOLJsonValue> ToJsonValue() const = 0;

    /// Returns the number of presets.
    virtual int PresetCount() const = 0;
    /// Returns the preset at @p index, 0-based.
    virtual std::shared_ptr<IOLFormatPreset> PresetAt(int index) const = 0;
    /// Appends @p preset; an empty pointer is ignored.
    virtual void AddPreset(std::shared_ptr<IOLFormatPreset> preset) = 0;
    /// Removes the preset called @p name; returns whether there was one.
    virtual bool RemovePreset(std::string name) = 0;
    /// Returns the preset called @p name.
    virtual std::shared_ptr<IOLFormatPreset> FindPreset(std::string name) const = 0;

    /// Returns the number of children.
    virtual int ChildCount() const = 0;
    /// Returns the child at @p index, 0-based.
    virtual std::shared_ptr<IOLFormatNode> ChildAt(int index) const = 0;
    /// Returns the child at @p index, 0-based.
    virtual std::shared_ptr<IOLFormatNode> ChildAt(int index) = 0;
    /// Appends @p child as the last child without recording the parent; an empty pointer and the
    /// node itself are ignored.
    virtual void AppendChild(std::shared_ptr<IOLFormatNode> child) = 0;
    /// Removes the child called @p name.
    virtual void RemoveChild(std::string name) = 0;
    /// Removes this very @p child.
    virtual void RemoveChild(std::shared_ptr<IOLFormatNode> child) = 0;
    /// Removes the child at @p index, 0-based.
    virtual void RemoveChildAt(int index) = 0;
    /// Returns the child called @p name.
    virtual std::shared_ptr<IOLFormatNode> FindChild(std::string name) const = 0;

    /// Returns whether @p other has the same name, description and face id; presets, children and
    /// parent do not count. False for an empty pointer.
    virtual bool IsEqual(std::shared_ptr<const IOLFormatNode> other) const = 0;

    /// Returns the first child.
    std::shared_ptr<IOLFormatNode> FirstChild() const;

    /// Returns the first preset.
    std::shared_ptr<IOLFormatPreset> FirstFormatPreset();
    /// Returns the first preset, for reading.
    std::shared_ptr<const IOLFormatPreset> FirstFormatPreset() const;

protected:
    ~IOLFormatNode();
};

} // namespace Orlimo

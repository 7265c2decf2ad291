#pragma once

#include "IOLFormatPreset.h"

namespace Test {

// A preset that answers as the one it is made of, for presets that differ from it in one respect.
class ForwardingPreset : public Orlimo::IOLFormatPreset
{
public:
    explicit ForwardingPreset(std::shared_ptr<Orlimo::IOLFormatPreset> preset);
    virtual ~ForwardingPreset();

    int FaceID() const override;
    void SetFaceID(int faceID) override;
    std::string Name() const override;
    void SetName(std::string name) override;
    std::string Description() const override;
    std::string FormatName() const override;
    std::shared_ptr<Orlimo::IOLFormatPreset> Clone() const override;
    void CopySettingsFrom(std::shared_ptr<Orlimo::IOLFormatPreset> other) override;
    bool IsEqual(std::shared_ptr<const Orlimo::IOLFormatPreset> other) const override;

    int VideoCodecCount() const override;
    std::shared_ptr<Orlimo::IOLCodecPreset> VideoCodecAt(int index) const override;
    int CurrentVideoCodecIndex() const override;
    void SetCurrentVideoCodecIndex(int index) override;
    int AudioCodecCount() const override;
    std::shared_ptr<Orlimo::IOLCodecPreset> AudioCodecAt(int index) const override;
    int CurrentAudioCodecIndex() const override;
    void SetCurrentAudioCodecIndex(int index) override;

protected:
    Orlimo::IOLFormatPreset &Preset() const { return *m_preset; }

private:
    std::shared_ptr<Orlimo::IOLFormatPreset> m_preset;
};

// A preset that hands out the given one as every clone of itself, and keeps its own settings. The
// clone may be empty.
class PresetWithClone final : public ForwardingPreset
{
public:
    PresetWithClone(std::shared_ptr<Orlimo::IOLFormatPreset> preset,
                    std::shared_ptr<Orlimo::IOLFormatPreset> clone);
    ~PresetWithClone() override;

    std::shared_ptr<Orlimo::IOLFormatPreset> Clone() const override { return m_clone; }

private:
    std::shared_ptr<Orlimo::IOLFormatPreset> m_clone;
};

// A preset that remembers its latest clone.
class WatchedPreset final : public ForwardingPreset
{
public:
    explicit WatchedPreset(std::shared_ptr<Orlimo::IOLFormatPreset> preset);
    ~WatchedPreset() override;

    std::shared_ptr<Orlimo::IOLFormatPreset> Clone() const override;
    const Orlimo::IOLFormatPreset &LatestClone() const { return *m_latestClone; }

private:
    mutable std::shared_ptr<Orlimo::IOLFormatPreset> m_latestClone;
};

} // namespace Test

// The half of a binding that all kinds share: it observes its model until one of the two dies, and
// mirrors it into the widget whenever it changes.
#pragma once

#include "platform/controls/Control.h"

namespace ui {

/// Any kind of binding, for those who only keep it.
class AnyBinding {
  public:
    virtual ~AnyBinding() = default;
};

template <class Model>
class Binding : public AnyBinding, private controls::Control::Observer {
  public:
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    /// Null once the model has died.
    Model* model() const { return m_model; }

  protected:
    explicit Binding(Model& model) : m_model(&model) { model.addObserver(*this); }
    ~Binding() override {
        if (m_model)
            m_model->removeObserver(*this);
    }

    /// Makes the widget show what the model says.
    virtual void mirror(const Model& model) = 0;
    /// Draws the widget before this returns.
    virtual void drawNow() = 0;
    virtual void modelDied() {}

  private:
    void controlChanged(controls::Control&) override { mirror(*m_model); }
    void displayNow(controls::Control&) override { drawNow(); }
    void controlDestroyed(controls::Control&) override {
        m_model = nullptr;
        modelDied();
    }

    Model* m_model;
};

} // namespace ui

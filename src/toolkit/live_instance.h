#pragma once
// The one live instance of a form class: a form is made, run and deleted by its caller,
// and at most one object of a class is alive at a time. Tests and the forms' callers
// reach the open form through it.
//
//   class DLG_TESTPLAY : public DLG_CLASS, public cLiveInstance<DLG_TESTPLAY> { ... };
//   DLG_TESTPLAY::Live()  // the open form, or null

template <class Form>
class cLiveInstance {
 public:
  static Form* Live() { return static_cast<Form*>(s_pLive); }

 protected:
  // The form is not yet a Form while this runs: the pointer is kept as the base and
  // turned into the form only when asked for.
  cLiveInstance() { s_pLive = this; }
  ~cLiveInstance() {
    if (s_pLive == this) s_pLive = nullptr;
  }
  cLiveInstance(const cLiveInstance&) = delete;
  cLiveInstance& operator=(const cLiveInstance&) = delete;

 private:
  static inline cLiveInstance* s_pLive = nullptr;
};

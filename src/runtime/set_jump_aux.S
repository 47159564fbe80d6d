// mint SetJumpStack_PushAux(void): links a frame and saves the caller's context into it, so that both the
// direct return and a later raise arrive in the caller's live frame. No C++ function can do this: the context
// of a function that has returned is dead.
//
// x86-64: the saving primitive is entered by a jump, with the caller's own return address on the stack.
//
// i386: arguments go on the stack, so a jump cannot pass them. The return address is taken off and kept in the
// last word of the frame's context (offset 60, which the primitive does not write), and the primitive is called
// so that both its returns land behind the call. What the caller has since written over the stack there is of
// no account: from a return come the stack pointer and the result, and from the frame the address to go to. The
// call goes through the global offset table by a scratch register, so that ebx is the caller's when it is saved.

        .text
        .globl  SetJumpStack_PushAux
        .type   SetJumpStack_PushAux, @function
        .hidden torvaneLinkSetJumpFrame
        .hidden torvaneSetJumpTop
        .p2align 4

#if defined(__x86_64__)

SetJumpStack_PushAux:
        .cfi_startproc
        endbr64
        subq    $8, %rsp
        .cfi_adjust_cfa_offset 8
        call    torvaneLinkSetJumpFrame
        addq    $8, %rsp
        .cfi_adjust_cfa_offset -8
        movq    %rax, %rdi              // the frame begins with its context
        xorl    %esi, %esi              // do not save the signal mask
        jmp     *__sigsetjmp@GOTPCREL(%rip)
        .cfi_endproc

#elif defined(__i386__)

#define CONTEXT_SPARE 60

SetJumpStack_PushAux:
        .cfi_startproc
        subl    $12, %esp
        .cfi_adjust_cfa_offset 12
        call    torvaneLinkSetJumpFrame
        addl    $12, %esp
        .cfi_adjust_cfa_offset -12
        popl    %edx
        .cfi_adjust_cfa_offset -4
        .cfi_register %eip, %edx
        movl    %edx, CONTEXT_SPARE(%eax)
        .cfi_undefined %eip             // it is in the frame from here on
        subl    $8, %esp                // 16-byte alignment at the call
        pushl   $0                      // do not save the signal mask
        pushl   %eax
        .cfi_adjust_cfa_offset 16
        call    .LpositionInEdx
        addl    $_GLOBAL_OFFSET_TABLE_, %edx
        call    *__sigsetjmp@GOT(%edx)
        addl    $16, %esp
        .cfi_adjust_cfa_offset -16
        call    .LpositionInEdx
        addl    $_GLOBAL_OFFSET_TABLE_, %edx
        movl    torvaneSetJumpTop@GOTOFF(%edx), %edx
        jmp     *CONTEXT_SPARE(%edx)
        .cfi_endproc

.LpositionInEdx:                        // of the instruction after the call
        .cfi_startproc
        movl    (%esp), %edx
        ret
        .cfi_endproc

#else
#error "no set-jump entry for this target"
#endif

        .size   SetJumpStack_PushAux, . - SetJumpStack_PushAux
        .section .note.GNU-stack, "", @progbits
